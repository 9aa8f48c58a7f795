#include "textjob/job/RecoveryCopy.h"

#include <algorithm>

#include "common/RunTimeError.h"
#include "common/files/FileNames.h"
#include "common/text/Numbers.h"
#include "common/text/Text.h"
#include "textjob/job/modTjb.h"

namespace morvane::textjob {
namespace {

// Seconds. The first keys of an edit go into one write; then the disk has its rest between two.
constexpr double kFirstDelay = 0.25;
constexpr double kInterval = 2;

std::string TimeText(const platform::DateTime& time) {
  const auto part = [](int number) { return common::PadLeft(common::PlainNumber(number), 2, "0"); };
  return part(time.year) + '-' + part(time.month) + '-' + part(time.day) + ' ' + part(time.hour) + ':' +
         part(time.minute) + ':' + part(time.second);
}

}  // namespace

std::optional<RecoveredJob> RecoveryCopy::Offer() {
  RecoveredJob copy;
  try {
    if (!ReadRecovery(files_.Read(kRecoveryFile), copy)) return PutAside(), std::nullopt;
  } catch (const common::RunTimeError&) {
    return std::nullopt;
  }
  exists_ = EqualsItsFile(copy);
  if (exists_) return Remove(), std::nullopt;
  const std::string shown = common::PathFileName(copy.name);
  if (!LiesInside(copy.name)) copy.name = kNewJob;
  const platform::Answer answer =
      prompts_.MsgBox("The program ended with unsaved changes of " + shown + ". Do you want to restore them?",
                      platform::Buttons::YesNo);
  // Not earlier: a window that is drawn while the question stands has a job without changes.
  exists_ = true;
  if (answer != platform::Answer::Yes) return Remove(), std::nullopt;
  return copy;
}

bool RecoveryCopy::LiesInside(const std::string& name) const try {
  return !files_.ResolveInside(name).empty();
} catch (const common::RunTimeError&) {
  return false;
}

bool RecoveryCopy::EqualsItsFile(const RecoveredJob& copy) const try {
  return files_.ReadInside(copy.name) == WriteTjb(copy.job);
} catch (const common::RunTimeError&) {
  return false;
}

void RecoveryCopy::PutAside() const {
  files_.System().Rename(files_.Resolve(kRecoveryFile), files_.Resolve(kDamagedRecoveryFile));
}

void RecoveryCopy::Touch(const TextJob& job, const std::string& name) {
  if (!job.Dirty) return Remove();
  const double now = clock_.MonotonicSeconds();
  if (!due_) due_ = std::max(now + kFirstDelay, earliest_);
  if (now < *due_) return;
  const std::string failure = Write(job, name);
  if (failure.empty() || told_) return;
  told_ = true;
  prompts_.MsgBox("The unsaved changes of " + common::PathFileName(name) +
                  " cannot be kept for a restart: " + failure + ". Save the job.");
}

std::optional<double> RecoveryCopy::DueIn() const {
  if (!due_) return std::nullopt;
  return std::max(*due_ - clock_.MonotonicSeconds(), 0.0);
}

std::string RecoveryCopy::Write(const TextJob& job, const std::string& name) {
  due_.reset();
  const std::string state = WriteRecovery(job, name, "");
  if (state == written_) return {};
  std::string failure;
  // A write that failed may have left a copy all the same.
  exists_ = true;
  written_.clear();
  try {
    files_.Save(kRecoveryFile, WriteRecovery(job, name, TimeText(clock_.Now())));
    written_ = state;
    told_ = false;
  } catch (const common::RunTimeError& error) {
    failure = error.description();
  }
  earliest_ = clock_.MonotonicSeconds() + kInterval;
  if (!failure.empty()) due_ = earliest_;
  return failure;
}

void RecoveryCopy::BeforeSave(const TextJob& job, const std::string& name) {
  if (job.Dirty) Write(job, name);
}

void RecoveryCopy::Remove() {
  due_.reset();
  if (exists_) files_.RemoveQuietly(kRecoveryFile);
  exists_ = false;
  written_.clear();
}

}  // namespace morvane::textjob
