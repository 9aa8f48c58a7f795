// The geometry of arcs and turned text that every drawing of the program shares: angles in degrees,
// 0 is East, 90 is North (smaller Y), so they grow counter-clockwise on the display. Coordinates and
// results are 32-bit floats; what happens in between is done in double.
#pragma once

namespace morvane::gcode {

struct Point {
  float x = 0;
  float y = 0;
  friend bool operator==(const Point&, const Point&) = default;
};

// Degrees from 0 up to 360, and job units.
struct AngleRadius {
  float angle = 0;
  float radius = 0;
};

// Where x, y lies as seen from the centre. The centre itself has angle 0 and radius 0.
AngleRadius GetAngleAndRadius(float cx, float cy, float x, float y);
// The inverse: the point at `angle` degrees on the circle.
Point PointFromAngle(float cx, float cy, float angle, float radius);

// Turns x, y about cx, cy, counter-clockwise on the display. A point at the centre stays.
Point RotateAbout(float cx, float cy, float x, float y, float degrees);
// The point `length` back against the direction `degrees`.
Point StepBack(float x0, float y0, float degrees, float length);

// A step along a circle: offsets from its centre with Y upward, and the direction of the circle there.
struct ArcStep {
  float x = 0;
  float y = 0;
  float tangent = 0;
};
// Goes on from `angle` by the angle that `width` takes on the circle, clockwise for a positive width. A
// radius or width of 0 takes no angle.
ArcStep StepAroundArc(float angle, float radius, float width);

// Straight distance in job units; infinite when it does not fit a 32-bit float.
float SegmentLength(float x0, float y0, float x1, float y1);
// Length of the arc on the radius of its end; start and end at the same point make a full circle.
// Throws "Overflow".
float ArcLength(float x0, float y0, float x1, float y1, float cx, float cy, bool clockwise);

// An arc as it is walked: from `startAngle` down to `endAngle` when clockwise, else up to it.
struct ArcPath {
  Point center;
  Point target;
  float startAngle = 0;
  float endAngle = 0;
  float radius = 0;  // that of the target
  bool clockwise = false;
};

// Equal angles make a full circle. Throws "Overflow" when the arc leaves the range of a 32-bit float.
ArcPath ArcTo(Point start, Point target, Point center, bool clockwise);

// A move of `turns` revolutions, clockwise from 0 on upward. The path ends at `end` up to one turn;
// with more it is one full circle back to the start. One whole turn is a full circle too, even when
// rounding puts its end beside the start. Throws "Overflow".
struct Turn {
  ArcPath path;
  Point end;
};
Turn TurnAbout(Point start, Point center, float turns);

// Hands every chord end to `sink(Point)`: one for each degree, beginning at the start angle, then the
// exact target. The angle is counted in a 32-bit float and the last one is included, so the chords are
// the same in every drawing and measurement.
template <typename Sink>
void WalkArc(const ArcPath& path, Sink&& sink) {
  const auto step = [&](float angle) {
    sink(PointFromAngle(path.center.x, path.center.y, angle, path.radius));
  };
  if (path.clockwise) {
    for (float angle = path.startAngle; angle >= path.endAngle; angle -= 1.0F) step(angle);
  } else {
    for (float angle = path.startAngle; angle <= path.endAngle; angle += 1.0F) step(angle);
  }
  sink(path.target);
}

template <typename Sink>
void WalkArc(Point start, Point end, Point center, bool clockwise, Sink&& sink) {
  WalkArc(ArcTo(start, end, center, clockwise), sink);
}

}  // namespace morvane::gcode
