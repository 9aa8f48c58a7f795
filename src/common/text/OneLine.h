// Keeps a text on the one line that a file gives it.
#pragma once

#include <string>
#include <string_view>

namespace morvane::common {

// The text without its carriage returns and line feeds; every other byte stays.
std::string OneLine(std::string_view text);

}  // namespace morvane::common
