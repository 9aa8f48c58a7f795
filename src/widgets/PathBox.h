// A selector of file names. A name that does not fit loses its beginning, so that the file itself can be
// read; the list that drops down is as wide as its longest name, and the tooltip tells a name that is cut.
#pragma once

#include <QComboBox>

namespace morvane::widgets {

class PathBox : public QComboBox {
  Q_OBJECT

 public:
  using QComboBox::QComboBox;
  void showPopup() override;

 protected:
  void initStyleOption(QStyleOptionComboBox* option) const override;
  bool event(QEvent* event) override;

 private:
  // Pixels for the text beside the arrow.
  int TextWidth() const;
};

}  // namespace morvane::widgets
