#include "widgets/canvas/FitView.h"

#include <algorithm>

namespace morvane::widgets {

platform::CanvasView Centered(const platform::CanvasView& view, const QSize& widget) {
  const double width = std::max(widget.width(), 1);
  const double height = std::max(widget.height(), 1);
  const double pixels = std::min(width / view.Width, height / view.Height);  // to a world unit
  const double shownWidth = width / pixels;
  const double shownHeight = height / pixels;
  return {static_cast<float>(view.Left - (shownWidth - view.Width) / 2),
          static_cast<float>(view.Top - (shownHeight - view.Height) / 2), static_cast<float>(shownWidth),
          static_cast<float>(shownHeight)};
}

}  // namespace morvane::widgets
