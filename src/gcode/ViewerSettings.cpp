#include "gcode/ViewerSettings.h"

#include "common/SettingDefaults.h"

namespace morvane::gcode {

ViewerSettings ReadViewerSettings(const common::SettingsSnapshot& settings) {
  ViewerSettings read;
  read.feed = common::ReadColor(settings, 0);
  read.current = common::ReadColor(settings, 1);
  read.rapid = common::ReadColor(settings, 2);
  read.background = common::ReadColor(settings, 4);
  read.lineWidth = common::ReadLineWidth(settings);
  read.referenceLength = common::ReadReferenceLength(settings);
  return read;
}

}  // namespace morvane::gcode
