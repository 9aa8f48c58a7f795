#include "textjob/job/JobDocument.h"

#include <utility>

#include "common/files/FileNames.h"
#include "textjob/job/JobFile.h"

namespace morvane::textjob {

void JobDocument::Restore(RecoveredJob copy) {
  name_ = std::move(copy.name);
  job_ = std::move(copy.job);
}

bool JobDocument::Open(const std::string& name) {
  if (recovery_) recovery_->Remove();
  name_ = name;
  return LoadTjbFile(job_, name_, files_, prompts_);
}

std::string JobDocument::GetTjbSaveName() {
  const std::string preset = name_ == kNewJob ? std::string() : name_;
  std::string name = dialogs_.SaveFileDialog("TJB Files|*.TJB|All Files|*.*", "tjb", preset);
  std::string message;
  if (name.empty() || common::CheckFileName(name, message)) return name;
  prompts_.MsgBox(message);
  return {};
}

bool JobDocument::Save(const std::string& name) {
  std::string target = name.empty() ? name_ : name;
  if (target == kNewJob) target = GetTjbSaveName();
  if (target.empty()) return false;
  if (recovery_) recovery_->BeforeSave(job_, target);
  if (!SaveTjbFile(job_, target, files_, prompts_)) {
    if (recovery_) recovery_->Touch(job_, name_);
    return false;
  }
  Open(target);
  return true;
}

bool JobDocument::SaveAs() {
  const std::string name = GetTjbSaveName();
  return !name.empty() && Save(name);
}

bool JobDocument::LeaveJob(bool forget) {
  if (!job_.Dirty) return true;
  const platform::Answer answer = prompts_.MsgBox("Do you want to save this job?", platform::Buttons::YesNo);
  if (answer == platform::Answer::Yes) return Save();
  if (recovery_) recovery_->Remove();
  if (forget) job_.Dirty = false;
  return true;
}

}  // namespace morvane::textjob
