// Which lines name a file that has an editor of its own.
#pragma once

#include "textjob/job/TextJob.h"

namespace morvane::textjob {

// True when exactly one line is selected and it names such a file.
bool HasFileEditor(const TextJob& job);

}  // namespace morvane::textjob
