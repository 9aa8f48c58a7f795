#include "app/AppWindows.h"

#include <QDialog>

#include "app/frmMain.h"
#include "context/AppContext.h"
#include "context/StatusPanels.h"
#include "platform/qt/Operations.h"
#include "platform/qt/QtText.h"

namespace morvane::app {

QWidget* AppWindows::MainWindow() {
  return frame_;
}

void AppWindows::OpenGraphicViewer(const std::string&) {}

void AppWindows::Refresh() {
  frame_->Refresh();
}

void AppWindows::OpenFile(const std::string& path) {
  context_.statusPanels.Tell(QObject::tr("No window opens this file: %1").arg(platform::PathToQt(path)));
}

void AppWindows::RedrawActiveJob() {}

bool AppWindows::EditorIsActive() const {
  return false;
}

int AppWindows::ShowModal(QDialog& dialog) {
  const platform::Operations::Scope scope(context_.operations);
  return dialog.exec();
}

}  // namespace morvane::app
