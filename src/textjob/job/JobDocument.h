// The job in the editor: which file it is, and its ways in and out.
#pragma once

#include <string>

#include "common/files/FileDialogs.h"
#include "common/files/Files.h"
#include "platform/Prompts.h"
#include "textjob/job/RecoveryCopy.h"
#include "textjob/job/TextJob.h"

namespace morvane::textjob {

class JobDocument {
 public:
  // `recovery`, when there is one, goes with each job that is saved, dropped or replaced here.
  JobDocument(TextJob& job, const common::Files& files, platform::Prompts& prompts,
              common::FileDialogs& dialogs, RecoveryCopy* recovery = nullptr)
      : job_(job), files_(files), prompts_(prompts), dialogs_(dialogs), recovery_(recovery), name_(kNewJob) {}

  // Program name, or `<NEW>`.
  const std::string& Name() const { return name_; }

  // Puts the changes of a program that died in place of the job; they are not saved yet.
  void Restore(RecoveredJob copy);
  // Loads the job of that program name. False after a message; what could be read stands.
  bool Open(const std::string& name);
  // Saves under `name`; empty means the present one, and `<NEW>` asks for a name. The job is loaded anew
  // from its file. False when nothing was saved.
  bool Save(const std::string& name = "");
  // Asks for a name. False when none was given or nothing was saved.
  bool SaveAs();
  // Asks for a changed job: "Do you want to save this job?". False when it was to be saved and could
  // not be: it must not be left then. `forget` takes the changed mark off after a No.
  bool LeaveJob(bool forget);

 private:
  std::string GetTjbSaveName();

  TextJob& job_;
  const common::Files& files_;
  platform::Prompts& prompts_;
  common::FileDialogs& dialogs_;
  RecoveryCopy* recovery_;
  std::string name_;
};

}  // namespace morvane::textjob
