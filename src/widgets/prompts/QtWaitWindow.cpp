#include "widgets/prompts/QtWaitWindow.h"

#include "platform/qt/QtText.h"
#include "widgets/Windows.h"
#include "widgets/prompts/frmWait.h"

namespace morvane::widgets {

QtWaitWindow::QtWaitWindow(Windows& windows) : windows_(windows) {}

QtWaitWindow::~QtWaitWindow() {
  Close();
}

void QtWaitWindow::Show(const std::string& text) {
  if (form_.isNull()) form_ = new frmWait(windows_.MainWindow());
  form_->SetText(platform::ToQt(text));
  form_->show();
  form_->repaint();
}

// The form runs no code of its own, so it may go at once, even in the middle of an operation.
void QtWaitWindow::Close() {
  delete form_.data();
}

}  // namespace morvane::widgets
