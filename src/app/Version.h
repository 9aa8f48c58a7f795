// What this build is called.
#pragma once

#include <QString>

namespace morvane::app {

inline constexpr const char* kTitle = "Morvane";

// "<major>.<minor>.<revision>"
QString VersionText();
// "<title> V<version>"
QString MainCaption();
// ISO date of the build.
QString BuildDate();

}  // namespace morvane::app
