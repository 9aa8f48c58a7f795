#include "gcode/ViewerSettings.h"

#include <algorithm>

#include "common/Numbers.h"

namespace morvane::gcode {

ViewerSettings ReadViewerSettings(const common::SettingsSnapshot& settings) {
  const auto number = [&](std::string_view key, std::string_view fallback) {
    return settings.Number(common::kSettingsSection, key, fallback);
  };
  const auto color = [&](std::string_view key, std::string_view fallback) {
    return static_cast<platform::Color>(common::ToInt32(number(key, fallback))) & 0xFFFFFFU;
  };
  ViewerSettings read;
  read.feed = color("Color0", "16776960");
  read.current = color("Color1", "255");
  read.rapid = color("Color2", "65280");
  read.background = color("Color4", "0");
  read.lineWidth = std::max(1, common::ToInt32(number("LineWidth", "2")));
  read.referenceLength = common::ToSingle(number("ReferenceLength", ".020"));
  return read;
}

}  // namespace morvane::gcode
