#include "common/Settings.h"

#include <algorithm>

#include "common/IniText.h"
#include "common/RunTimeError.h"
#include "common/text/Numbers.h"
#include "common/text/Tokenizer.h"

namespace morvane::common {
namespace {

constexpr std::string_view kFileName = "\\Morvane.ini";
constexpr std::size_t kLongestValue = 255;
constexpr std::size_t kLongestSection = 10240;

}  // namespace

SettingsSnapshot::SettingsSnapshot(std::string bytes) : bytes_(std::move(bytes)) {}

std::string SettingsSnapshot::Get(std::string_view section, std::string_view key,
                                  std::string_view fallback) const {
  return std::string(IniValue(bytes_, section, key).value_or(fallback).substr(0, kLongestValue));
}

double SettingsSnapshot::Number(std::string_view section, std::string_view key,
                                std::string_view fallback) const {
  return ParseNumber(Get(section, key, fallback));
}

std::vector<std::pair<std::string, std::string>> SettingsSnapshot::GetAll(std::string_view section) const {
  std::string text = IniSectionText(bytes_, section, kLongestSection);
  std::replace(text.begin(), text.end(), '\0', ';');
  std::vector<std::pair<std::string, std::string>> result;
  for (const std::string& entry : SplitText(text, ";")) {
    const std::vector<std::string> parts = SplitText(entry, "=");
    if (!parts.empty()) result.emplace_back(parts[0], parts.size() > 1 ? parts[1] : std::string());
  }
  return result;
}

SettingsSnapshot Settings::Read() const {
  try {
    return SettingsSnapshot(files_.Read(kFileName));
  } catch (const RunTimeError&) {
    // A file that is missing or cannot be read means that every setting takes its default.
    return SettingsSnapshot(std::string());
  }
}

std::string Settings::GetSetting(std::string_view section, std::string_view key,
                                 std::string_view fallback) const {
  return Read().Get(section, key, fallback);
}

std::vector<std::pair<std::string, std::string>> Settings::GetAllSettings(std::string_view section) const {
  return Read().GetAll(section);
}

void Settings::SaveSetting(std::string_view section, std::string_view key, std::string_view value) const {
  Apply({{std::string(section), std::string(key), std::string(value)}});
}

void Settings::DeleteSetting(std::string_view section, std::string_view key) const {
  Apply({{std::string(section), std::string(key), {}, true}});
}

void Settings::Apply(const std::vector<SettingChange>& changes) const {
  // Only a missing file starts an empty one: writing over a file that cannot be read would lose it.
  const std::string old = files_.FileExists(kFileName) ? files_.Read(kFileName) : std::string();
  std::string bytes = old;
  for (const SettingChange& change : changes) {
    if (change.remove) {
      bytes = IniWithout(bytes, change.section, change.key);
    } else if (IniCanHold(change.section, change.key)) {
      bytes = IniWith(bytes, change.section, change.key, change.value);
    } else {
      throw RunTimeError(kPathFileAccessError);
    }
  }
  if (bytes != old) files_.Save(kFileName, bytes);
}

std::string Settings::UnitsFormatText() const {
  return GetSetting(kSettingsSection, "UnitsFormat", "0.000");
}

}  // namespace morvane::common
