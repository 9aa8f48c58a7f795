// The frame's menu bar. It has more menus than fit side by side at the least width of the window: there
// they stand closer, and what is still missing the letters make up for by their size.
#pragma once

#include <QMenuBar>

namespace morvane::app {

class FittedMenuBar : public QMenuBar {
  Q_OBJECT

 public:
  explicit FittedMenuBar(QWidget* parent);
  ~FittedMenuBar() override;

 protected:
  void showEvent(QShowEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void actionEvent(QActionEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  class CloseStyle;
  void Fit();
  // Pixels that all menus take side by side in this font.
  int Needed(const QFont& font) const;

  CloseStyle* style_;
  bool fitting_ = false;
};

}  // namespace morvane::app
