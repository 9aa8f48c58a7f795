#include "app/AppWindows.h"

#include <QDialog>
#include <QMdiArea>

#include "app/RecentFiles.h"
#include "app/frmMain.h"
#include "common/FileNames.h"
#include "common/Files.h"
#include "common/Text.h"
#include "context/AppContext.h"
#include "context/StatusPanels.h"
#include "fonts/frmFontView.h"
#include "gcode/frmGraphic.h"
#include "platform/qt/Operations.h"
#include "platform/qt/QtText.h"

namespace morvane::app {
namespace {

// A closed window lives on, hidden, while an operation runs.
bool IsOpen(const QPointer<MdiChild>& child) { return !child.isNull() && child->isVisible(); }

}  // namespace

QWidget* AppWindows::MainWindow() {
  return frame_;
}

void AppWindows::OpenGraphicViewer(const std::string& file) {
  frame_->AddChild(new gcode::frmGraphic(context_, file));
}

void AppWindows::ShowFontView(const std::string& name) {
  if (!IsOpen(fontView_)) fontView_ = frame_->AddChild(new fonts::frmFontView(context_));
  frame_->Area().setActiveSubWindow(fontView_);
  if (!name.empty()) qobject_cast<fonts::frmFontView*>(fontView_->widget())->OpenFont(name);
}

void AppWindows::Refresh() {
  frame_->Refresh();
}

void AppWindows::OpenFile(const std::string& path) {
  const std::string name = context_.files.ProgramName(path);
  const std::string extension = common::ToUpper(common::FileExtension(common::PathFileName(path)));
  RememberFile(context_.settings, path);
  if (extension == "JOB") return OpenGraphicViewer(name);
  if (extension == "FNT") return ShowFontView(name);
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
