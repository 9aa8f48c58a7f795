#include "app/AppWindows.h"

#include <QDialog>
#include <QFileInfo>
#include <QMdiArea>

#include "app/RecentFiles.h"
#include "app/frame/frmMain.h"
#include "common/files/Files.h"
#include "context/AppContext.h"
#include "context/StatusPanels.h"
#include "fonts/ui/frmFontView.h"
#include "gcode/ui/frmGraphic.h"
#include "platform/qt/Operations.h"
#include "platform/qt/QtText.h"
#include "textjob/job/RecoveryCopy.h"
#include "textjob/ui/frmEdit.h"

namespace morvane::app {
namespace {

// A closed window lives on, hidden, while an operation runs.
bool IsOpen(const QPointer<MdiChild>& child) {
  return !child.isNull() && !child->isHidden();
}

template <typename T>
T* Form(const QPointer<MdiChild>& child) {
  return qobject_cast<T*>(child->widget());
}

// The extension in capitals.
QString Kind(const std::string& path) {
  return QFileInfo(platform::PathToQt(path)).suffix().toUpper();
}

}  // namespace

QWidget* AppWindows::MainWindow() {
  return frame_;
}

void AppWindows::OpenGraphicViewer(const std::string& file) {
  frame_->AddChild(new gcode::frmGraphic(context_, file));
}

textjob::frmEdit* AppWindows::ShowEditor() {
  if (!IsOpen(editor_)) {
    editor_ = frame_->AddChild(new textjob::frmEdit(context_));
    editor_->showMaximized();
  }
  frame_->Area().setActiveSubWindow(editor_);
  return Form<textjob::frmEdit>(editor_);
}

void AppWindows::CloseEditor() {
  if (IsOpen(editor_)) editor_->close();
}

void AppWindows::ShowFontView(const std::string& name) {
  if (!IsOpen(fontView_)) fontView_ = frame_->AddChild(new fonts::frmFontView(context_));
  frame_->Area().setActiveSubWindow(fontView_);
  if (!name.empty()) Form<fonts::frmFontView>(fontView_)->OpenFont(name);
}

void AppWindows::Refresh() {
  frame_->Refresh();
}

void AppWindows::ViewGraphic(const std::string& path) {
  // The list of recent files opens by kind.
  if (Kind(path) == "JOB") return OpenFile(path);
  OpenGraphicViewer(context_.files.ProgramName(path));
}

void AppWindows::OpenFile(const std::string& path) {
  const std::string name = context_.files.ProgramName(path);
  const QString kind = Kind(path);
  if (kind == "TJB") {
    OpenJob(name);
  } else if (kind == "JOB") {
    OpenGraphicViewer(name);
  } else if (kind == "FNT") {
    ShowFontView(name);
  } else {
    return context_.statusPanels.Tell(
        QObject::tr("No window opens this file: %1").arg(platform::PathToQt(path)));
  }
  RememberFile(context_.settings, path);
}

void AppWindows::OpenJob(const std::string& name) {
  textjob::frmEdit* editor = ShowEditor();
  if (editor->LeaveJob()) editor->OpenJob(name);
}

bool AppWindows::OfferRecovery() {
  const auto copy = context_.recovery.Offer();
  if (copy) ShowEditor()->OpenRecovered(*copy);
  return copy.has_value();
}

void AppWindows::RedrawActiveJob() {
  jobIsStale_ = !EditorIsActive();
  if (!jobIsStale_) Form<textjob::frmEdit>(editor_)->DrawJob();
}

void AppWindows::SelectJobLine(int line) {
  if (IsOpen(editor_)) Form<textjob::frmEdit>(editor_)->SelectLine(line);
}

void AppWindows::RedrawStaleJob() {
  if (jobIsStale_ && EditorIsActive()) RedrawActiveJob();
}

bool AppWindows::EditorIsActive() const {
  return IsOpen(editor_) && frame_->ActiveForm() == editor_->widget();
}

int AppWindows::ShowModal(QDialog& dialog) {
  const platform::Operations::Scope scope(context_.operations);
  return dialog.exec();
}

}  // namespace morvane::app
