// Where a path really leads, and where the user's configuration lies.
#pragma once

#include <string>

namespace morvane::platform {

// Absolute, with symbolic links followed; parts that do not exist yet are kept, and a link whose end does
// not exist leads to that end. A path that cannot be followed (a ring of links) comes back as it is.
std::string PosixRealPath(const std::string& path);

// `XDG_CONFIG_HOME`, or `.config` in the user's home folder.
std::string UserConfigDirectory();

}  // namespace morvane::platform
