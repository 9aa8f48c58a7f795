#include "app/StartSettings.h"

#include <string>

#include "common/SettingDefaults.h"
#include "common/Settings.h"

namespace morvane::app {
void WriteColorDefaults(const common::Settings& settings) {
  const common::SettingsSnapshot snapshot = settings.Read();
  std::vector<common::SettingChange> changes;
  for (std::size_t i = 0; i < std::size(common::kColorDefaults); ++i) {
    const std::string key = "Color" + std::to_string(i);
    if (!snapshot.Get(common::kSettingsSection, key, "").empty()) continue;
    changes.push_back({std::string(common::kSettingsSection), key, common::kColorDefaults[i]});
  }
  if (!changes.empty()) settings.Apply(changes);
}

}  // namespace morvane::app
