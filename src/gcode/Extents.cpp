#include "gcode/Extents.h"

#include <cmath>

#include "common/RunTimeError.h"

namespace morvane::gcode {
namespace {

constexpr float kUntouched = 99999;
constexpr double kMarginBeyond = 0.25;
constexpr double kMarginBefore = 0.05;

double Quotient(double dividend, double divisor) {
  if (divisor == 0) throw common::RunTimeError(common::kDivisionByZero);
  return dividend / divisor;
}

void CheckFinite(const platform::CanvasView& view) {
  if (!std::isfinite(view.Left + view.Width) || !std::isfinite(view.Top + view.Height)) {
    throw common::RunTimeError(common::kOverflow);
  }
}

}  // namespace

platform::CanvasView SetScale(Extents extents, float width, float height) {
  if (extents.MaxY == 0) extents.MaxY = 1;
  if (extents.MaxX == 0) extents.MaxX = 1;
  if (extents.MinY == kUntouched) extents.MinY = 0;
  if (extents.MinX == kUntouched) extents.MinX = 0;
  const float maxX = static_cast<float>(extents.MaxX + kMarginBeyond);
  const float maxY = static_cast<float>(extents.MaxY + kMarginBeyond);
  platform::CanvasView view;
  view.Left = static_cast<float>(extents.MinX - kMarginBefore);
  view.Top = static_cast<float>(extents.MinY - kMarginBefore);
  const double spanX = static_cast<double>(maxX) - view.Left;
  const double spanY = static_cast<double>(maxY) - view.Top;
  if (Quotient(width, spanX) < Quotient(height, spanY)) {
    view.Width = static_cast<float>(spanX);
    view.Height = static_cast<float>(Quotient(height, width) * spanX);
  } else {
    view.Width = static_cast<float>(Quotient(width, height) * spanY);
    view.Height = static_cast<float>(spanY);
  }
  CheckFinite(view);
  return view;
}

platform::CanvasView Zoomed(const platform::CanvasView& view, float factor) {
  const platform::CanvasView zoomed = {view.Left, view.Top, view.Width * factor, view.Height * factor};
  return std::isnormal(zoomed.Width) && std::isnormal(zoomed.Height) ? zoomed : view;
}

platform::CanvasView Shifted(const platform::CanvasView& view, float widths) {
  return {view.Left + widths * view.Width, view.Top, view.Width, view.Height};
}

}  // namespace morvane::gcode
