// The wait window: one label and no button. It goes when its operation ends, not before.
#pragma once

#include <QDialog>

namespace morvane::widgets {

class frmWait : public QDialog {
  Q_OBJECT

 public:
  explicit frmWait(QWidget* parent = nullptr);
  void SetText(const QString& text);
  void reject() override {}

 protected:
  void closeEvent(QCloseEvent* event) override;
};

}  // namespace morvane::widgets
