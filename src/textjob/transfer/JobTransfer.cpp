#include "textjob/transfer/JobTransfer.h"

#include "common/Attempt.h"
#include "common/files/FileNames.h"
#include "common/text/Text.h"
#include "link/ControllerNames.h"
#include "textjob/job/modTjb.h"

namespace morvane::textjob {
namespace {

constexpr const char* kSend = "QT7250DFILE ";
constexpr const char* kFetch = "QT7250FILE ";
constexpr const char* kPrintModeName = "TJB.TJB";

}  // namespace

JobTransfer::JobTransfer(const TransferSources& sources) : sources_(sources) {
  const common::SettingsSnapshot settings = sources_.settings.Read();
  images_ = settings.Get(common::kSettingsSection, "DontDownloadImages", "0") != "1";
  asTjb_ = settings.Get(common::kSettingsSection, "DownloadAsTJB", "0") == "1";
  fixture_ = settings.Get(common::kSettingsSection, "Fixture", "");
}

bool JobTransfer::Download() {
  if (!Save()) return false;
  if (!SendLines(false) || !SendJob(Target())) return false;
  if (WithFixture() && !SendFixture()) return false;
  return Finish("Download Complete");
}

bool JobTransfer::DownloadAndRun() {
  if (!Save() || !SendLines(true)) return false;
  if (!WithFixture()) return SendJob(Target()) && Run(Target(), "QT7250RUN " + Target());
  const std::string job = common::PathFileName(name_);
  return SendFixture() && SendJob(job) && Run(job, "QT7250RUNFIX " + fixture_ + ',' + job);
}

// Another job may be opened while this one is under way.
bool JobTransfer::Save() {
  if (!sources_.document.Save()) return false;
  name_ = sources_.document.Name();
  return true;
}

bool JobTransfer::SendLines(bool forRun) {
  // Events run during a transfer: whoever edits the job then edits the next one.
  const std::vector<std::string> lines = sources_.job.Lines;
  for (const std::string& text : lines) {
    const TextJobLine line = ParseTjbLine(text);
    const TransferRule rule = TransferRuleOf(line.Type);
    if (forRun && !rule.sentForRun) continue;
    if (!SendLine(line, rule.send)) return false;
  }
  return true;
}

bool JobTransfer::SendLine(const TextJobLine& line, Send send) {
  if (send == Send::Nothing || (send == Send::Image && !images_)) return true;
  if (send == Send::Caps) return SendShared("CAPFILE", "Downloading Cap File", "Default.cap");
  if (send == Send::Scales) return SendShared("SCALEFILE", "Downloading Scale File", "Default.sca");
  if (line.Text.empty() || !sent_.Enter(line.Text)) return true;
  if (!link::AcceptName(sources_.files, sources_.prompts, line.Text)) {
    sources_.waitWindow.Close();
    return false;
  }
  ShowWait("Downloading " + line.Text);
  if (send == Send::Binary) return sources_.comm.DownloadBinaryFile("QT7250DLBIN " + line.Text, line.Text);
  return send == Send::Text ? SendFile(kSend, line.Text) : SendGcode(line.Text);
}

bool JobTransfer::SendFile(const char* command, const std::string& name) {
  return sources_.comm.DownloadFile(command + name, name);
}

// The controller's G-code jobs have no extension.
bool JobTransfer::SendGcode(const std::string& name) {
  const std::string capitals = common::ToUpper(name);
  return sources_.comm.DownloadFile("JOB " + capitals.substr(0, capitals.find(".JOB")), name);
}

// All caps lie in one file, and so do all scales.
bool JobTransfer::SendShared(const char* mark, const char* caption, const char* name) {
  if (!sent_.Enter(mark)) return true;
  ShowWait(caption);
  return SendFile(kSend, name);
}

std::string JobTransfer::Target() const {
  return asTjb_ ? kPrintModeName : common::PathFileName(name_);
}

bool JobTransfer::SendJob(const std::string& target) {
  const std::string job = common::PathFileName(name_);
  ShowWait("Downloading " + job + (asTjb_ && target == kPrintModeName ? " as TJB.TJB" : ""));
  return sources_.comm.DownloadFile(kSend + target, name_);
}

bool JobTransfer::SendFixture() {
  ShowWait("Downloading " + fixture_);
  return SendFile(kSend, fixture_);
}

bool JobTransfer::Run(const std::string& name, const std::string& command) {
  ShowWait("Running " + name);
  return sources_.comm.SendCommand(command) && Finish("Download and Run Complete");
}

bool JobTransfer::Upload() {
  if (!sources_.comm.UploadFile("QT7250FILES *.TJB", link::kListing)) return false;
  std::string name;
  common::AttemptTold(sources_.prompts, std::string("Load(") + link::kListing + ") ", [&] {
    name = sources_.prompts.PickOne("Select File", link::ListedNames(sources_.files));
  });
  if (name.empty() || Aborted() || !FetchJob(name)) return false;
  FetchFiles();
  if (Aborted()) return false;
  sources_.waitWindow.Close();
  return sources_.document.Open(name);
}

// The job that stands in the document is left only now, when another one is sure to come.
bool JobTransfer::FetchJob(const std::string& name) {
  if (!link::AcceptName(sources_.files, sources_.prompts, name) || !sources_.document.LeaveJob(true))
    return false;
  ShowWait("Uploading " + name);
  if (!sources_.comm.UploadFile(kFetch + name, name)) return false;
  sources_.document.Open(name);
  return true;
}

// A file that does not come does not keep back the others.
void JobTransfer::FetchFiles() {
  const std::vector<std::string> lines = sources_.job.Lines;
  for (const std::string& text : lines) {
    const TextJobLine line = ParseTjbLine(text);
    const Fetch fetch = TransferRuleOf(line.Type).fetch;
    if (fetch == Fetch::Nothing || (fetch == Fetch::Image && !images_)) continue;
    if (line.Text.empty() || !sent_.Enter(line.Text) || Aborted()) continue;
    if (!link::AcceptName(sources_.files, sources_.prompts, line.Text)) continue;
    ShowWait("Uploading " + line.Text);
    sources_.comm.UploadFile(kFetch + line.Text, line.Text);
  }
}

void JobTransfer::ShowWait(const std::string& what) {
  sources_.waitWindow.Show(link::WaitText(what));
}

bool JobTransfer::Finish(const char* message) {
  sources_.waitWindow.Close();
  sources_.prompts.MsgBox(message);
  return true;
}

}  // namespace morvane::textjob
