// What the program does to its settings before anything reads them.
#pragma once

namespace morvane::common {
class Settings;
}

namespace morvane::app {

// Writes the default of each colour that reads as empty. Throws when the ini file cannot be written.
void WriteColorDefaults(const common::Settings& settings);

}  // namespace morvane::app
