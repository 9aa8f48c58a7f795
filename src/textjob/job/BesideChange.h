// What a change of a job changed beside it: settings and the job's lock record.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "common/Settings.h"
#include "textjob/job/LockImages.h"

namespace morvane::textjob {

// Values to apply: each setting with Settings::Apply, the record with WriteLockRecord.
struct BesideValues {
  std::vector<common::SettingChange> settings;
  std::optional<LockRecord> lock;

  bool operator==(const BesideValues&) const = default;
};

// `before` and `after` name the same settings, each once, and both have a lock record or none.
struct BesideChange {
  BesideValues before;
  BesideValues after;
};

}  // namespace morvane::textjob
