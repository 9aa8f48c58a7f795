#include "app/StartSettings.h"

#include <string>

#include "common/Settings.h"

namespace morvane::app {
namespace {

constexpr const char* kColors[] = {"16776960", "255", "65280", "16777215", "0", "65535"};

}  // namespace

void WriteColorDefaults(const common::Settings& settings) {
  const common::SettingsSnapshot snapshot = settings.Read();
  std::vector<common::SettingChange> changes;
  for (std::size_t i = 0; i < std::size(kColors); ++i) {
    const std::string key = "Color" + std::to_string(i);
    if (!snapshot.Get(common::kSettingsSection, key, "").empty()) continue;
    changes.push_back({std::string(common::kSettingsSection), key, kColors[i]});
  }
  if (!changes.empty()) settings.Apply(changes);
}

}  // namespace morvane::app
