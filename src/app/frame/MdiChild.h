// The frame around a form inside the main window. Closing it unloads the form, but never under a
// running operation.
#pragma once

#include <QMdiSubWindow>

namespace morvane::platform {
class Operations;
}

namespace morvane::app {

class MdiChild : public QMdiSubWindow {
  Q_OBJECT

 public:
  // Takes the form, which goes with the frame.
  MdiChild(QWidget* form, platform::Operations& operations);

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  platform::Operations& operations_;
};

}  // namespace morvane::app
