// Keeps the unsaved state of the job in a file of its own, so that the next start can offer it when the
// program died. What is saved never depends on it.
#pragma once

#include <optional>
#include <string>

#include "common/files/Files.h"
#include "platform/Clock.h"
#include "platform/Prompts.h"
#include "textjob/job/RecoveryFile.h"
#include "textjob/job/TextJob.h"

namespace morvane::textjob {

// In the base directory. The one with the suffix holds a copy that could not be read.
inline constexpr const char* kRecoveryFile = ".morvane-recovery";
inline constexpr const char* kDamagedRecoveryFile = ".morvane-recovery-damaged";

class RecoveryCopy {
 public:
  RecoveryCopy(const common::Files& files, const platform::Clock& clock, platform::Prompts& prompts)
      : files_(files), clock_(clock), prompts_(prompts) {}

  // At the start, before a job is opened: asks whether the changes of a program that died are wanted. They
  // are given back to be opened, or their copy goes. A copy that equals its saved job goes without a word,
  // a damaged one is put aside. A job that lay outside the base directory comes back as `<NEW>`: no name in
  // the copy leads out.
  std::optional<RecoveredJob> Offer();

  // Call after each change, and when DueIn says so. Writes when it is time to; a failure is told once and
  // the write tried again. A job that is not changed has no copy.
  void Touch(const TextJob& job, const std::string& name);
  // Seconds until Touch must be called again; nothing when the copy is as the job was at the last call.
  std::optional<double> DueIn() const;

  // The job goes into the file of that name: puts the same state into the copy first, so that a program
  // that dies in between is not asked for an older one.
  void BeforeSave(const TextJob& job, const std::string& name);
  // The job was saved or dropped.
  void Remove();

 private:
  bool LiesInside(const std::string& name) const;
  bool EqualsItsFile(const RecoveredJob& copy) const;
  void PutAside() const;
  // Empty, or why the copy could not be written.
  std::string Write(const TextJob& job, const std::string& name);

  const common::Files& files_;
  const platform::Clock& clock_;
  platform::Prompts& prompts_;
  bool exists_ = false;        // this program wrote the copy, or took it over
  std::string written_;        // the state in it
  std::optional<double> due_;  // monotonic seconds
  double earliest_ = 0;        // of the next write
  bool told_ = false;          // that it cannot be written
};

}  // namespace morvane::textjob
