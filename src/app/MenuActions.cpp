#include "app/MenuActions.h"

#include "app/AppWindows.h"
#include "app/frmAbout.h"
#include "app/frmMain.h"
#include "common/FileDialogs.h"
#include "common/Settings.h"
#include "context/AppContext.h"
#include "context/StatusPanels.h"
#include "context/ViewOptions.h"
#include "widgets/NotAvailable.h"

namespace morvane::app {

using context::ViewOptions;

void MenuActions::mnuFileExit_Click() {
  frame_.close();
}

void MenuActions::mnuGraphicView_Click() {
  const std::string name = context_.fileDialogs.OpenFileDialog("Job Files|*.JOB|All Files|*.*", "job");
  if (!name.empty()) windows_.OpenGraphicViewer(name);
}

void MenuActions::mnuGraphicOpenLastJob_Click() { windows_.OpenGraphicViewer("TEXTJOB.JOB"); }

void MenuActions::mnuFontView_Click() { windows_.ShowFontView(); }

void MenuActions::Toggle(bool ViewOptions::*flag) {
  context_.viewOptions.*flag = !(context_.viewOptions.*flag);
  frame_.ShowViewMarks();
  frame_.Refresh();
}

void MenuActions::mnuViewToolPath_Click() {
  Toggle(&ViewOptions::toolPath);
}
void MenuActions::mnuViewGridLines_Click() {
  Toggle(&ViewOptions::gridLines);
}
void MenuActions::mnuViewReferenceMarks_Click() {
  Toggle(&ViewOptions::referenceMarks);
}
void MenuActions::mnuViewBackgroundImage_Click() {
  Toggle(&ViewOptions::backgroundImage);
}
void MenuActions::mnuViewFixture_Click() {
  Toggle(&ViewOptions::fixture);
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

void MenuActions::ConnectionPanel_Click() {
  context_.statusPanels.Tell(widgets::kNotAvailable);
}

}  // namespace morvane::app
