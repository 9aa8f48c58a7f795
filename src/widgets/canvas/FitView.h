// Fits a part of the world into a widget of another shape.
#pragma once

#include <QSize>

#include "platform/Canvas.h"

namespace morvane::widgets {

// The smallest view of the widget's shape that shows all of `view`, with it in the middle.
platform::CanvasView Centered(const platform::CanvasView& view, const QSize& widget);

}  // namespace morvane::widgets
