// The files that were opened last, newest first, for the File menu.
#pragma once

#include <string>
#include <vector>

namespace morvane::common {
class Settings;
}

namespace morvane::app {

inline constexpr std::size_t kMaxRecentFiles = 8;

// Native paths. Kept in section `RecentFiles` of the settings.
std::vector<std::string> RecentFiles(const common::Settings& settings);
// Puts a path first. A store that cannot be written leaves the list as it was.
void RememberFile(const common::Settings& settings, const std::string& path);

}  // namespace morvane::app
