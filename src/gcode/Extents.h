// How far a job reaches, and the scale of a surface that shows it.
#pragma once

#include "platform/Canvas.h"

namespace morvane::gcode {

// The maximum never lies below 0, the minimum is found by the first point: a job that lies entirely at
// negative coordinates keeps its maximum at 0.
struct Extents {
  float MaxX = 0;
  float MaxY = 0;
  float MinX = 99999;
  float MinY = 99999;

  void CheckExtents(float x, float y) {
    if (x > MaxX) MaxX = x;
    if (y > MaxY) MaxY = y;
    if (x < MinX) MinX = x;
    if (y < MinY) MinY = y;
  }
  friend bool operator==(const Extents&, const Extents&) = default;
};

// What a surface of `width` by `height` pixels shows of the extents: one unit is as long in X as in Y,
// margins of 0.05 at the left and top and 0.25 beyond the job, slack to the right or at the bottom.
// Throws "Division by zero" or "Overflow" when no such scale exists.
platform::CanvasView SetScale(Extents extents, float width, float height);

// The surface of the small viewer, and of every viewer before a job set its scale.
inline constexpr platform::CanvasView kFirstScale = {0, 0, 6, 6};

// Zooms of the small viewer: 0.5 looks closer, 2 shows more. The upper left corner stays;
// beyond the range of a 32-bit float nothing changes.
platform::CanvasView Zoomed(const platform::CanvasView& view, float factor);
// Moves the view by whole widths of itself, to the right when positive.
platform::CanvasView Shifted(const platform::CanvasView& view, float widths);

}  // namespace morvane::gcode
