// The buttons that send a job to the controller and fetch one from there.
#include "cli/Commands.h"
#include "cli/GlobalArguments.h"
#include "cli/LinkSession.h"
#include "common/text/Text.h"
#include "textjob/preview/ViewSettings.h"
#include "textjob/transfer/JobTransfer.h"

namespace morvane::cli {
namespace {

// The editor without its window.
struct Editor {
  explicit Editor(Environment& environment)
      : session(environment),
        document(job, environment.files, environment.prompts, session.Dialogs()),
        viewFixture(textjob::ReadViewOptions(environment.settings.Read()).Fixture),
        transfer({environment.files, environment.settings, environment.prompts, session.WaitWindow(),
                  session.Comm(), job, document, viewFixture}) {}

  LinkSession session;
  textjob::TextJob job;
  textjob::JobDocument document;
  bool viewFixture;
  textjob::JobTransfer transfer;
};

}  // namespace

int JobDownload(Environment& environment, const Arguments& given) {
  Arguments arguments = given;
  const bool run = TakeFlag(arguments, "--run");
  Expect(arguments, 1, 1);
  Editor editor(environment);
  // A job that was read in part must not be saved over its file.
  if (!editor.document.Open(environment.FileArgument(arguments[0]))) return kFailed;
  return (run ? editor.transfer.DownloadAndRun() : editor.transfer.Download()) ? kDone : kFailed;
}

int JobUpload(Environment& environment, const Arguments& arguments) {
  Expect(arguments, 1, 1);
  Editor editor(environment);
  environment.prompts.Choose(common::FromUtf8(arguments[0]));
  return editor.transfer.Upload() ? kDone : kFailed;
}

}  // namespace morvane::cli
