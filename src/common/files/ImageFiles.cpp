#include "common/files/ImageFiles.h"

#include <algorithm>

#include "common/IniText.h"
#include "common/files/FileNames.h"
#include "common/text/CodePage.h"
#include "common/text/Tokenizer.h"

namespace morvane::common {
namespace {

constexpr const char* kImagePatterns[] = {"*.bmp", "*.jpg", "*.gif", "*.ico", "*.rle", "*.wmf", "*.emf"};
constexpr const char* kImageFilter = "Image Files|*.bmp;*.jpg;*.gif;*.ico;*.rle;*.wmf;*.emf|All Files|*.*";

// An image bears its extension, and no other key of the section holds a point.
bool CanBeKey(const std::string& image) {
  return image.find('.') != std::string::npos && IniCanHold(kSettingsSection, image);
}

// In the code page, also for a file in a folder that it cannot express.
std::string BareName(const std::string& nativePath) {
  std::string name = FromUtf8(nativePath.substr(nativePath.find_last_of('/') + 1));
  std::replace(name.begin(), name.end(), '?', '_');
  return name;
}

}  // namespace

std::vector<std::string> ImageFiles(const Files& files) {
  std::vector<std::string> images;
  for (const char* pattern : kImagePatterns) {
    for (std::string& name : files.List(pattern)) images.push_back(std::move(name));
  }
  return images;
}

ImageRectangle ReadImageRectangle(const Settings& settings, const std::string& image) {
  const std::string text = settings.GetSetting(kSettingsSection, image, "0,0,4,4");
  TokenScan scan(text);
  ImageRectangle place;
  for (std::string& number : place) number = scan.Next(",");
  return place;
}

std::vector<SettingChange> ImageRectangleChanges(const std::string& image, const ImageRectangle& place) {
  if (!CanBeKey(image)) return {};
  std::string text;
  for (const std::string& number : place) text += ',' + number.substr(0, number.find(','));
  return {{std::string(kSettingsSection), image, text.substr(1)}};
}

std::string ImportImage(const Files& files, FileDialogs& dialogs) {
  const std::string chosen = dialogs.OpenFileDialog(kImageFilter, "bmp");
  if (chosen.empty()) return {};
  if (PathFileName(chosen) == chosen) return chosen;
  const std::string name = BareName(files.Resolve(chosen));
  files.Save(name, files.Read(chosen));
  return name;
}

}  // namespace morvane::common
