// The drawing operations of the viewers over a whole job.
#pragma once

#include "gcode/GcodeProgram.h"
#include "gcode/Pass.h"
#include "platform/Canvas.h"

namespace morvane::gcode {

// A drawing surface: its size in pixels, and its scale, which a failed measurement leaves as it is.
struct Surface {
  float width = 1200;
  float height = 800;
  platform::CanvasView view = kFirstScale;
};

// Clears the canvas and draws the job at the scale that stands: what a check box or a tool swatch does.
PassState DrawFile(const GcodeProgram& program, const PassOptions& options, platform::Canvas& canvas);

// The same pass without drawing; its extents hold what was met up to a failure.
PassState GetExtents(const GcodeProgram& program, const PassOptions& options);

// Sets the surface's scale from the job's extents. The small viewer keeps its own, and a job that cannot
// be measured or shown at any scale leaves the one that stands.
void Rescale(const GcodeProgram& program, const PassOptions& options, Surface& surface);

// Measures, sets the scale from the extents (the small viewer keeps its own) and draws: what opening a
// file and resizing do. The canvas gets Clear, SetScale, and the drawing.
PassState ShowFile(const GcodeProgram& program, const PassOptions& options, Surface& surface,
                   platform::Canvas& canvas);

}  // namespace morvane::gcode
