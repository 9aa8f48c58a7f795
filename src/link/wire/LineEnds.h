// Line ends of replies and of the files that they are stored in.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "common/files/Files.h"

namespace morvane::link {

// The text without any carriage return or line feed, wherever they stand.
std::string StripLineEnds(std::string_view text);
// Rewrites a file so that all its line ends are carriage return and line feed; the doubled carriage
// returns of the controller's text layer go. Throws the run-time error of the failure.
void NormalizeLineEnds(const common::Files& files, std::string_view name);
std::string NormalizedLineEnds(std::string_view text);
// All lines of a text file. Throws.
std::vector<std::string> ReadLines(const common::Files& files, std::string_view name);

}  // namespace morvane::link
