#include "gcode/Geometry.h"

#include <cmath>

#include "common/RunTimeError.h"

namespace morvane::gcode {
namespace {

constexpr double kPi = 3.14159265358979;
constexpr double kDegreesToRadians = kPi / 180.0;
// Shortened on purpose: measured lengths are compared with those of older reports.
constexpr float kLengthOfTurn = 6.28318F;
constexpr float kFullTurn = 360.0F;

double Radians(double degrees) {
  return degrees * kDegreesToRadians;
}

void CheckRange(Point center, float radius) {
  const float farX = std::fabs(center.x) + radius;
  const float farY = std::fabs(center.y) + radius;
  if (!std::isfinite(farX) || !std::isfinite(farY)) throw common::RunTimeError(common::kOverflow);
}

void MakeFullCircle(ArcPath& path) {
  if (path.clockwise) {
    path.endAngle = path.startAngle - kFullTurn;
  } else {
    path.endAngle = path.startAngle;
    path.startAngle -= kFullTurn;
  }
}

}  // namespace

AngleRadius GetAngleAndRadius(float cx, float cy, float x, float y) {
  const float dx = x - cx;
  const float dy = y - cy;
  const double wideX = dx;
  const double wideY = dy;
  const float radius = static_cast<float>(std::sqrt(wideX * wideX + wideY * wideY));
  if (dx == 0) {
    if (dy == 0) return {0, radius};
    return {dy < 0 ? 90.0F : 270.0F, radius};
  }
  double angle = -std::atan(wideY / wideX) / kDegreesToRadians;
  if (dx < 0) {
    angle += 180;
  } else if (dy > 0) {
    angle += 360;
  }
  return {static_cast<float>(angle), radius};
}

Point PointFromAngle(float cx, float cy, float angle, float radius) {
  const double radians = Radians(angle);
  return {static_cast<float>(cx + std::cos(radians) * radius),
          static_cast<float>(cy - std::sin(radians) * radius)};
}

Point RotateAbout(float cx, float cy, float x, float y, float degrees) {
  const double dx = static_cast<double>(x) - cx;
  const double dy = static_cast<double>(y) - cy;
  if (dx == 0 && dy == 0) return {x, y};
  double angle = 0;
  if (dx == 0) {
    angle = dy > 0 ? 90 : 270;
  } else {
    angle = std::atan(dy / dx) / kDegreesToRadians;
    if (dx < 0) {
      angle += 180;
    } else if (dy < 0) {
      angle += 360;
    }
  }
  const double radius = std::sqrt(dx * dx + dy * dy);
  const double radians = Radians(angle - degrees);
  return {static_cast<float>(cx + std::cos(radians) * radius),
          static_cast<float>(cy + std::sin(radians) * radius)};
}

Point StepBack(float x0, float y0, float degrees, float length) {
  const double radians = Radians(degrees);
  return {static_cast<float>(x0 - std::cos(radians) * length),
          static_cast<float>(y0 + std::sin(radians) * length)};
}

ArcStep StepAroundArc(float angle, float radius, float width) {
  constexpr double kTwoPi = 6.28318530717958;
  double step = 0;
  if (radius != 0 && width != 0) step = 360.0 / (kTwoPi * radius / width);
  const double at = angle - step;
  return {static_cast<float>(std::cos(Radians(at)) * radius),
          static_cast<float>(std::sin(Radians(at)) * radius), static_cast<float>(at - 90)};
}

float SegmentLength(float x0, float y0, float x1, float y1) {
  const double dx = static_cast<double>(x1) - x0;
  const double dy = static_cast<double>(y1) - y0;
  return static_cast<float>(std::sqrt(dx * dx + dy * dy));
}

float ArcLength(float x0, float y0, float x1, float y1, float cx, float cy, bool clockwise) {
  const ArcPath path = ArcTo({x0, y0}, {x1, y1}, {cx, cy}, clockwise);
  const double fullLength = static_cast<double>(path.radius) * kLengthOfTurn;
  if (x0 == x1 && y0 == y1) return static_cast<float>(fullLength);
  const double sweep = std::fabs(static_cast<double>(path.endAngle) - path.startAngle);
  return static_cast<float>(sweep / 360.0 * fullLength);
}

ArcPath ArcTo(Point start, Point target, Point center, bool clockwise) {
  ArcPath path;
  path.center = center;
  path.target = target;
  path.clockwise = clockwise;
  const AngleRadius begin = GetAngleAndRadius(center.x, center.y, start.x, start.y);
  const AngleRadius end = GetAngleAndRadius(center.x, center.y, target.x, target.y);
  CheckRange(center, begin.radius);
  CheckRange(center, end.radius);
  path.startAngle = begin.angle;
  path.endAngle = end.angle;
  path.radius = end.radius;
  if (clockwise) {
    if (path.startAngle < path.endAngle) path.endAngle -= kFullTurn;
  } else {
    if (path.startAngle > path.endAngle) path.startAngle -= kFullTurn;
  }
  if (path.startAngle == path.endAngle) MakeFullCircle(path);
  return path;
}

Turn TurnAbout(Point start, Point center, float turns) {
  const AngleRadius from = GetAngleAndRadius(center.x, center.y, start.x, start.y);
  const float endAngle = from.angle - turns * kFullTurn;
  if (!std::isfinite(endAngle)) throw common::RunTimeError(common::kOverflow);
  Turn turn;
  turn.end = PointFromAngle(center.x, center.y, endAngle, from.radius);
  const bool clockwise = turns >= 0;
  const bool endsAtStart = turns == 0 || turns == 1 || turns == -1;
  if (turns < -1 || turns > 1 || endsAtStart) {
    turn.path = ArcTo(start, start, center, clockwise);
    if (endsAtStart) turn.path.target = turn.end;
  } else {
    turn.path = ArcTo(start, turn.end, center, clockwise);
  }
  return turn;
}

}  // namespace morvane::gcode
