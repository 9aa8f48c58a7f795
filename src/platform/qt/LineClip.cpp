#include "platform/qt/LineClip.h"

#include <algorithm>
#include <cmath>

namespace morvane::platform {
namespace {

// Liang-Barsky for one edge: narrows [from, to] to where the line is inside.
bool Narrow(double direction, double distance, double& from, double& to) {
  if (direction == 0) return distance >= 0;
  const double at = distance / direction;
  if (direction < 0) {
    from = std::max(from, at);
  } else {
    to = std::min(to, at);
  }
  return from <= to;
}

}  // namespace

bool ClipLine(QLineF& line) {
  const double dx = line.dx();
  const double dy = line.dy();
  if (!std::isfinite(dx) || !std::isfinite(dy)) return false;
  double from = 0;
  double to = 1;
  if (!Narrow(-dx, line.x1() + kPainterLimit, from, to) || !Narrow(dx, kPainterLimit - line.x1(), from, to) ||
      !Narrow(-dy, line.y1() + kPainterLimit, from, to) || !Narrow(dy, kPainterLimit - line.y1(), from, to)) {
    return false;
  }
  line.setLine(line.x1() + from * dx, line.y1() + from * dy, line.x1() + to * dx, line.y1() + to * dy);
  return true;
}

}  // namespace morvane::platform
