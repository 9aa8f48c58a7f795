#include "common/ImportSettings.h"

#include "common/IniText.h"
#include "common/text/Text.h"

namespace morvane::common {
namespace {

constexpr std::string_view kMachinesSection = "Machines";
constexpr std::string_view kImportedKey = "Imported";
constexpr std::string_view kStaysBehind = "Developer";

}  // namespace

void ImportSettings(platform::PerUserStore& store, const Settings& settings) {
  if (!settings.GetSetting(kSettingsSection, kImportedKey, "").empty()) return;
  std::vector<SettingChange> changes;
  for (const std::string_view sectionName : {kSettingsSection, kMachinesSection}) {
    const std::string section(sectionName);
    for (const auto& [key, value] : store.All(section)) {
      if (section == kSettingsSection && EqualIgnoringCase(key, kStaysBehind)) continue;
      if (IniCanHold(section, key)) changes.push_back({section, key, value});
    }
  }
  const std::vector<SettingChange> moved = changes;
  changes.push_back({std::string(kSettingsSection), std::string(kImportedKey), "1"});
  settings.Apply(changes);
  for (const SettingChange& change : moved) store.Remove(change.section, change.key);
}

}  // namespace morvane::common
