// Cuts lines at the edge of what a painter can take.
#pragma once

#include <QLineF>

namespace morvane::platform {

// Painters lose lines, or time, with coordinates far outside their device.
inline constexpr double kPainterLimit = 16000;  // pixels

// False when nothing of the line lies inside the limit, or an end is no number.
bool ClipLine(QLineF& line);

}  // namespace morvane::platform
