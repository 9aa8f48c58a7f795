#include "textjob/preview/PreviewSettings.h"

#include "common/SettingDefaults.h"
#include "common/text/Numbers.h"

namespace morvane::textjob {
namespace {

float Single(const common::SettingsSnapshot& settings, const char* key, const char* fallback) {
  return common::ParseSingle(settings.Get(common::kSettingsSection, key, fallback));
}

bool IsOn(const common::SettingsSnapshot& settings, const char* key) {
  return settings.Get(common::kSettingsSection, key, "0") == "1";
}

}  // namespace

PreviewSettings ReadPreviewSettings(const common::SettingsSnapshot& settings) {
  PreviewSettings read;
  for (std::size_t i = 0; i < read.colors.size(); ++i) {
    read.colors[i] = common::ReadColor(settings, static_cast<int>(i));
  }
  read.lineWidth = common::ReadLineWidth(settings);
  read.referenceLength = common::ReadReferenceLength(settings);
  read.gridSpacing = Single(settings, "GridSpacing", "1");
  read.proFonts = IsOn(settings, "ProFonts");
  read.useImageSize = IsOn(settings, "UseImageSize");
  read.background.name = settings.Get(common::kSettingsSection, "BackgroundImage", "");
  read.background.place = {
      Single(settings, "BackgroundImageX", "0"), Single(settings, "BackgroundImageY", "0"),
      Single(settings, "BackgroundImageWidth", "2"), Single(settings, "BackgroundImageHeight", "2")};
  read.editor = {Single(settings, "EditorLeft", "0"), Single(settings, "EditorTop", "0"),
                 Single(settings, "EditorWidth", "6"), Single(settings, "EditorHeight", "4")};
  read.fixture = settings.Get(common::kSettingsSection, "Fixture", "");
  return read;
}

}  // namespace morvane::textjob
