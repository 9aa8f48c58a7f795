#include "app/RecentFiles.h"

#include <algorithm>

#include "common/Attempt.h"
#include "common/Settings.h"

namespace morvane::app {
namespace {

constexpr const char* kSection = "RecentFiles";
constexpr std::size_t kMaxValue = 255;  // what a reading of the settings gives back

std::string Key(std::size_t index) {
  return "File" + std::to_string(index + 1);
}

}  // namespace

std::vector<std::string> RecentFiles(const common::Settings& settings) {
  const common::SettingsSnapshot snapshot = settings.Read();
  std::vector<std::string> files;
  for (std::size_t i = 0; i < kMaxRecentFiles; ++i) {
    std::string path = snapshot.Get(kSection, Key(i), "");
    if (!path.empty()) files.push_back(std::move(path));
  }
  return files;
}

void RememberFile(const common::Settings& settings, const std::string& path) {
  if (path.empty() || path.size() > kMaxValue) return;
  std::vector<std::string> files = RecentFiles(settings);
  if (!files.empty() && files.front() == path) return;
  std::erase(files, path);
  files.insert(files.begin(), path);
  if (files.size() > kMaxRecentFiles) files.resize(kMaxRecentFiles);
  std::vector<common::SettingChange> changes;
  for (std::size_t i = 0; i < files.size(); ++i) changes.push_back({kSection, Key(i), files[i]});
  common::Quietly([&] { settings.Apply(changes); });
}

}  // namespace morvane::app
