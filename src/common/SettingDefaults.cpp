#include "common/SettingDefaults.h"

#include <algorithm>

#include "common/text/Numbers.h"

namespace morvane::common {

std::uint32_t ReadColor(const SettingsSnapshot& settings, int index) {
  constexpr std::int32_t kWhite = 0xFFFFFF;
  const std::string text =
      settings.Get(kSettingsSection, "Color" + PlainNumber(std::int32_t{index}), kColorDefaults[index]);
  return static_cast<std::uint32_t>(std::clamp(ParseInt32(text), 0, kWhite));
}

int ReadLineWidth(const SettingsSnapshot& settings) {
  constexpr std::int32_t kWidest = 100;
  return std::clamp(ParseInt32(settings.Get(kSettingsSection, "LineWidth", "2")), 1, kWidest);
}

float ReadReferenceLength(const SettingsSnapshot& settings) {
  return ParseSingle(settings.Get(kSettingsSection, "ReferenceLength", ".020"));
}

}  // namespace morvane::common
