#include "platform/qt/LineClip.h"

#include <cmath>

namespace morvane::platform {
namespace {

struct End {
  double along = 0;   // the coordinate that is held
  double across = 0;  // the other one
};

void CutEnd(End& end, const End& other, double limit) {
  if (end.along <= limit) return;
  end.across += (limit - end.along) * ((other.across - end.across) / (other.along - end.along));
  end.along = limit;
}

// Cuts what lies above the limit; false when that is all.
bool Cut(End& a, End& b, double limit) {
  if (a.along > limit && b.along > limit) return false;
  CutEnd(a, b, limit);
  CutEnd(b, a, limit);
  return true;
}

// Cuts what lies beyond the limit on both sides.
bool CutBoth(End& a, End& b) {
  if (!Cut(a, b, kPainterLimit)) return false;
  a.along = -a.along;
  b.along = -b.along;
  const bool inside = Cut(a, b, kPainterLimit);
  a.along = -a.along;
  b.along = -b.along;
  return inside;
}

}  // namespace

bool ClipLine(QLineF& line) {
  if (!std::isfinite(line.dx()) || !std::isfinite(line.dy())) return false;
  End a{line.x1(), line.y1()};
  End b{line.x2(), line.y2()};
  if (!CutBoth(a, b)) return false;
  std::swap(a.along, a.across);
  std::swap(b.along, b.across);
  if (!CutBoth(a, b)) return false;
  line.setLine(a.across, a.along, b.across, b.along);
  return true;
}

}  // namespace morvane::platform
