// The settings store: `Morvane.ini` in the base directory, read at each use.
#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "common/files/Files.h"

namespace morvane::common {

// One reading of the ini file. An operation takes one at its start, so that it reads each setting once.
class SettingsSnapshot {
 public:
  explicit SettingsSnapshot(std::string bytes);
  // Text of the key without regard to case, or `fallback`. At most 255 characters.
  std::string Get(std::string_view section, std::string_view key, std::string_view fallback) const;
  // Prefix parse of the text.
  double Number(std::string_view section, std::string_view key, std::string_view fallback) const;
  // Keys and values of one section in file order. At most 10240 characters of the section are read;
  // entries are cut at ";" and at a second "=", and the list ends at the first empty entry.
  std::vector<std::pair<std::string, std::string>> GetAll(std::string_view section) const;

 private:
  std::string bytes_;
};

struct SettingChange {
  std::string section;
  std::string key;
  std::string value;
  bool remove = false;

  bool operator==(const SettingChange&) const = default;
};

class Settings {
 public:
  explicit Settings(const Files& files) : files_(files) {}

  SettingsSnapshot Read() const;
  std::string GetSetting(std::string_view section, std::string_view key, std::string_view fallback) const;
  std::vector<std::pair<std::string, std::string>> GetAllSettings(std::string_view section) const;
  // These write the file anew, checked: they throw the run-time error of the failure and leave the old
  // file whole. Control characters in a value are dropped, since a value is one line.
  void SaveSetting(std::string_view section, std::string_view key, std::string_view value) const;
  void DeleteSetting(std::string_view section, std::string_view key) const;
  // All changes of one dialog in one write.
  void Apply(const std::vector<SettingChange>& changes) const;
  // `UnitsFormat` of section `Settings`, default "0.000".
  std::string UnitsFormatText() const;

 private:
  const Files& files_;
};

inline constexpr std::string_view kSettingsSection = "Settings";

}  // namespace morvane::common
