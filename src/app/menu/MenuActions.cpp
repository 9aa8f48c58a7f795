#include "app/menu/MenuActions.h"

#include "app/AppWindows.h"
#include "app/frame/frmMain.h"
#include "app/frmAbout.h"
#include "app/options/frmOptions.h"
#include "common/Settings.h"
#include "common/files/FileDialogs.h"
#include "common/files/Files.h"
#include "context/AppContext.h"
#include "context/StatusPanels.h"
#include "textjob/preview/ViewOptions.h"
#include "textjob/ui/frmEdit.h"
#include "widgets/NotAvailable.h"

namespace morvane::app {

using textjob::ViewOptions;

void MenuActions::mnuFileOpen_Click() {
  windows_.ShowEditor();
  const std::string name = context_.fileDialogs.OpenFileDialog("TJB Files (*.TJB)|*.TJB", "tjb");
  if (!name.empty()) windows_.OpenFile(context_.files.Resolve(name));
}

void MenuActions::mnuFileEdit_Click() {
  windows_.ShowEditor();
}
void MenuActions::mnuFileOffset_Click() {
  windows_.ShowEditor()->OffsetJob();
}
void MenuActions::mnuFileClose_Click() {
  windows_.CloseEditor();
}
void MenuActions::mnuFileSave_Click() {
  windows_.ShowEditor()->cmdSave_Click();
}
void MenuActions::mnuFileSaveAs_Click() {
  windows_.ShowEditor()->SaveJobAs();
}

void MenuActions::mnuFileExit_Click() {
  frame_.close();
}

void MenuActions::mnuGraphicView_Click() {
  const std::string name = context_.fileDialogs.OpenFileDialog("Job Files|*.JOB|All Files|*.*", "job");
  if (!name.empty()) windows_.ViewGraphic(context_.files.Resolve(name));
}

void MenuActions::mnuGraphicOpenLastJob_Click() {
  windows_.OpenGraphicViewer("TEXTJOB.JOB");
}

void MenuActions::mnuFontView_Click() {
  windows_.ShowFontView();
}

void MenuActions::Toggle(bool ViewOptions::*mark) {
  context_.viewOptions.*mark = !(context_.viewOptions.*mark);
  frame_.ShowViewMarks();
  frame_.Refresh();
}

void MenuActions::mnuViewOptions_Click() {
  frmOptions options(context_, &frame_);
  windows_.ShowModal(options);
  frame_.Refresh();
}

void MenuActions::mnuViewToolPath_Click() {
  Toggle(&ViewOptions::ToolPath);
}
void MenuActions::mnuViewGridLines_Click() {
  Toggle(&ViewOptions::GridLines);
}
void MenuActions::mnuViewReferenceMarks_Click() {
  Toggle(&ViewOptions::ReferenceMarks);
}
void MenuActions::mnuViewBackgroundImage_Click() {
  Toggle(&ViewOptions::BackgroundImage);
}
void MenuActions::mnuViewFixture_Click() {
  Toggle(&ViewOptions::Fixture);
}
void MenuActions::mnuViewRefresh_Click() {
  frame_.Refresh();
}

void MenuActions::mnuHelpAbout_Click() {
  frmAbout about(&frame_);
  windows_.ShowModal(about);
}

void MenuActions::JobPanel_Click() {
  if (context_.settings.GetSetting(common::kSettingsSection, "EnableProduction", "0") != "1") return;
  context_.statusPanels.Tell(widgets::kNotAvailable);
}

}  // namespace morvane::app
