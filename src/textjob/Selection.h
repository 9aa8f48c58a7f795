// The selected lines of a job, as the text that TextJob keeps.
#pragma once

#include <string>
#include <vector>

namespace morvane::textjob {

std::string SelectLines(const std::vector<int>& lines);
// A line in the list is taken out, another one is put at its end.
std::string ToggleLine(const std::string& selection, int line);

}  // namespace morvane::textjob
