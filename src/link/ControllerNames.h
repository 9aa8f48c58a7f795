// Names that a controller or a document gave, before anything is read or written under them.
#pragma once

#include <string>
#include <vector>

#include "common/files/Files.h"
#include "platform/Prompts.h"

namespace morvane::link {

// Reply of a listing.
inline constexpr const char* kListing = "\\Temp\\tmp.lst";

// True when the name stays inside the base directory; a name that leads elsewhere is refused with a box.
bool AcceptName(const common::Files& files, platform::Prompts& prompts, const std::string& name);
// With a question mark for each control character, which could do anything to a terminal.
std::string PrintableName(std::string name);
// The names of the last listing, one for each line that is not empty. Throws.
std::vector<std::string> ListedNames(const common::Files& files);
// The text of the wait window.
std::string WaitText(const std::string& what);

}  // namespace morvane::link
