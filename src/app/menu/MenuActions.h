// What the menu entries do. Each function is the event procedure of the entry of its name.
#pragma once

#include "app/menu/FileKinds.h"

namespace morvane::context {
struct AppContext;
}
namespace morvane::textjob {
struct ViewOptions;
}

namespace morvane::app {

class AppWindows;
class frmMain;

class MenuActions {
 public:
  MenuActions(const context::AppContext& context, AppWindows& windows, frmMain& frame)
      : context_(context), windows_(windows), frame_(frame) {}

  void mnuFileOpen_Click();
  void mnuFileEdit_Click();
  void mnuFileOffset_Click();
  void mnuFileClose_Click();
  void mnuFileSave_Click();
  void mnuFileSaveAs_Click();
  void mnuFileExit_Click();
  // The Download and Upload entries of all kinds of files, and Verify.
  template <const FileKind& kind>
  void Download_Click() {
    Download(kind);
  }
  template <const FileKind& kind>
  void Upload_Click() {
    Upload(kind);
  }
  void mnuFileVerify_Click();
  void mnuGraphicDownload_Click();
  void mnuGraphicUpload_Click();
  void mnuGraphicUploadLastJob_Click();
  void mnuSetupDownloadDateTime_Click();
  void mnuGraphicView_Click();
  void mnuGraphicOpenLastJob_Click();
  void mnuFontView_Click();
  void mnuViewOptions_Click();
  void mnuViewToolPath_Click();
  void mnuViewGridLines_Click();
  void mnuViewReferenceMarks_Click();
  void mnuViewBackgroundImage_Click();
  void mnuViewFixture_Click();
  void mnuViewRefresh_Click();
  void mnuHelpAbout_Click();

  // The status bar's second panel: choose a product, when production is enabled.
  void JobPanel_Click();

 private:
  // Runs a command of the link, unless another one runs.
  template <typename Work>
  void Run(Work&& work);
  void Download(const FileKind& kind);
  void Upload(const FileKind& kind);
  void Toggle(bool textjob::ViewOptions::*mark);

  const context::AppContext& context_;
  AppWindows& windows_;
  frmMain& frame_;
};

}  // namespace morvane::app
