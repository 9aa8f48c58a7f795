// The menu entries that send files to the controller and fetch them.
#include "app/AppWindows.h"
#include "app/frame/frmMain.h"
#include "app/menu/MenuActions.h"
#include "context/AppContext.h"
#include "link/MachineClock.h"
#include "link/Verify.h"
#include "link/Wrappers.h"
#include "platform/Clock.h"
#include "platform/Prompts.h"
#include "platform/qt/Operations.h"
#include "platform/qt/QtText.h"
#include "widgets/prompts/frmUploadFiles.h"

namespace morvane::app {

template <typename Work>
void MenuActions::Run(Work&& work) {
  if (!context_.comm.Owner().Free()) return;
  const platform::Operations::Scope scope(context_.operations);
  work(link::WrapperSources{context_.files, context_.fileDialogs, context_.prompts, context_.waitWindow,
                            context_.comm});
}

void MenuActions::Download(const FileKind& kind) {
  Run([&](const link::WrapperSources& sources) {
    link::DownloadFile(sources, kind.filter, kind.extension, kind.fixed, kind.binary);
  });
}

void MenuActions::Upload(const FileKind& kind) {
  Run([&](const link::WrapperSources& sources) {
    if (kind.pattern == nullptr) {
      link::UploadNamedFile(sources, kind.filter, kind.extension, kind.fixed);
      return;
    }
    link::UploadFiles(sources, kind.pattern,
                      [&](const link::Names& names) { return context_.prompts.PickMany("", names); });
  });
}

void MenuActions::mnuFileVerify_Click() {
  Run([](const link::WrapperSources& sources) {
    link::VerifyFiles(sources, kTextJobs.filter, kTextJobs.extension);
  });
}

void MenuActions::mnuGraphicDownload_Click() {
  Run([](const link::WrapperSources& sources) { link::DownloadGraphic(sources); });
}

void MenuActions::mnuGraphicUpload_Click() {
  Run([this](const link::WrapperSources& sources) {
    bool show = false;
    const auto choose = [&](const link::Names& names) {
      QStringList entries;
      for (const std::string& name : names) entries << platform::ToQt(name);
      widgets::frmUploadFiles dialog(entries, &frame_);
      dialog.OfferDisplay();
      windows_.ShowModal(dialog);
      show = dialog.UseToolViewer();
      link::Names chosen;
      for (const QString& name : dialog.Selected()) chosen.push_back(platform::FromQt(name));
      return chosen;
    };
    for (const std::string& name : link::UploadGraphics(sources, choose)) {
      if (show && !context_.abortTransfers) windows_.OpenGraphicViewer(name);
    }
  });
}

void MenuActions::mnuGraphicUploadLastJob_Click() {
  Run([this](const link::WrapperSources& sources) {
    if (link::UploadTextJob(sources)) windows_.OpenGraphicViewer("TEXTJOB.JOB");
  });
}

void MenuActions::mnuSetupDownloadDateTime_Click() {
  Run([this](const link::WrapperSources& sources) { link::DownloadDateTime(sources, context_.clock); });
}

}  // namespace morvane::app
