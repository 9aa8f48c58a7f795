// The list that binds a background image of its own to a job: `LockImages.txt` in the base directory.
#pragma once

#include <string>

#include "common/files/Files.h"

namespace morvane::textjob {

// Job and image are file names without a comma: the list has no quoting. Lengths are in the job's units.
struct LockRecord {
  std::string Job;
  std::string Image;  // empty: the job is locked to no image
  float X = 0;
  float Y = 0;
  float Width = 0;
  float Height = 0;

  bool operator==(const LockRecord&) const = default;
};

// `record.Job` is in. True when the job has a line, and the other fields are filled; jobs compare by file
// name without path and case. A list that cannot be read has no lines.
bool FindLockRecord(const common::Files& files, LockRecord& record);

// Puts the record in place of the job's line, or removes that line; a job without a line is added at the
// end. The list ends at the job's line: the records behind it are dropped. A missing list is created.
// Throws the run-time error of the failure and leaves the old list whole.
void WriteLockRecord(const common::Files& files, const LockRecord& record, bool remove);

}  // namespace morvane::textjob
