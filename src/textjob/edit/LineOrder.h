// The order of a job's lines: the list that shows it, and the moves that change it.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "textjob/job/TextJob.h"

namespace morvane::textjob {

// A line in that list: what the preview calls it, and " (X,Y)" in plain numbers.
std::string LineEntry(std::string_view line);
std::vector<std::string> LineEntries(const TextJob& job);

// Swaps line `index` with the one before or behind it, and sets `Dirty`. False, and nothing happens, for a
// line that has no such neighbour.
bool MoveLineUp(TextJob& job, std::size_t index);
bool MoveLineDown(TextJob& job, std::size_t index);

}  // namespace morvane::textjob
