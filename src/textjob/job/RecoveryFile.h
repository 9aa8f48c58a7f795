// The bytes of a recovery copy: the unsaved state of a job, which is read back exactly or not at all.
#pragma once

#include <string>
#include <string_view>

#include "textjob/job/TextJob.h"

namespace morvane::textjob {

struct RecoveredJob {
  std::string name;  // program name of the job, or `<NEW>`
  TextJob job;       // marked changed, without a selection
};

// `time` is for a person who looks into the file.
std::string WriteRecovery(const TextJob& job, std::string_view name, std::string_view time);
// False for bytes that are not a whole and undamaged copy.
bool ReadRecovery(std::string_view bytes, RecoveredJob& copy);

}  // namespace morvane::textjob
