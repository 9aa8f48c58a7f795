// G-code files inside a job's preview: a subset of the dialect, scaled, turned and put in place.
#pragma once

#include "gcode/GcodeProgram.h"
#include "textjob/preview/PreviewPen.h"

namespace morvane::textjob {

struct GraphicPlacement {
  float x = 0;
  float y = 0;
  float scaleX = 1;
  float scaleY = 1;
  float rotate = 0;  // degrees, clockwise on the display
};

// Draws the statements of a file in their order. Throws at an arc that
// lacks a word or leaves the range of the numbers; what was drawn before it stays.
void DrawGraphic(const gcode::GcodeProgram& graphic, const GraphicPlacement& placement, platform::Color color,
                 PreviewPen& pen);

}  // namespace morvane::textjob
