// The settings that drawings of a job read, once for each pass.
#pragma once

#include "common/Settings.h"
#include "platform/Canvas.h"

namespace morvane::gcode {

struct ViewerSettings {
  platform::Color feed = 16776960;  // Color0
  platform::Color current = 255;    // Color1: the editor's current line and its marks
  platform::Color rapid = 65280;    // Color2: rapid moves and marks
  platform::Color background = 0;   // Color4: also what tools that are not shown are drawn in
  int lineWidth = 2;                // pixels of a feed, at least 1
  float referenceLength = 0.02F;    // half length of a cross mark's arms, job units
};

ViewerSettings ReadViewerSettings(const common::SettingsSnapshot& settings);

}  // namespace morvane::gcode
