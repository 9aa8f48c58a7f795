#include "gcode/Geometry.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <vector>

#include "common/RunTimeError.h"

namespace morvane::gcode {
namespace {

constexpr float kLargest = std::numeric_limits<float>::max();

void ExpectNear(Point actual, Point expected, float tolerance = 1e-6F) {
  EXPECT_NEAR(actual.x, expected.x, tolerance);
  EXPECT_NEAR(actual.y, expected.y, tolerance);
}

std::vector<Point> Walk(Point start, Point end, Point center, bool clockwise) {
  std::vector<Point> points;
  WalkArc(start, end, center, clockwise, [&](Point point) { points.push_back(point); });
  return points;
}

TEST(Geometry, AnglesRunFromEastThroughNorthAndBack) {
  const struct {
    Point point;
    float angle;
    float radius;
  } cases[] = {{{3, 2}, 0, 2},
               {{1, 0}, 90, 2},
               {{-1, 2}, 180, 2},
               {{1, 4}, 270, 2},
               {{1, 2}, 0, 0},
               {{2, 1}, 45, std::sqrt(2.0F)},
               {{0, 1}, 135, std::sqrt(2.0F)},
               {{0, 3}, 225, std::sqrt(2.0F)},
               {{2, 3}, 315, std::sqrt(2.0F)}};
  for (const auto& c : cases) {
    const AngleRadius got = GetAngleAndRadius(1, 2, c.point.x, c.point.y);
    EXPECT_FLOAT_EQ(got.angle, c.angle) << c.point.x << ',' << c.point.y;
    EXPECT_FLOAT_EQ(got.radius, c.radius);
    ExpectNear(PointFromAngle(1, 2, c.angle, c.radius), c.point);
  }
}

TEST(Geometry, RotateAboutTurnsCounterClockwiseOnTheDisplay) {
  const struct {
    Point point;
    float degrees;
    Point expected;
  } cases[] = {{{2, 1}, 90, {1, 0}},  {{1, 0}, 90, {0, 1}},
               {{0, 1}, 90, {1, 2}},  {{1, 2}, 90, {2, 1}},
               {{2, 2}, 90, {2, 0}},  {{2, 0}, -90, {2, 2}},
               {{0, 2}, 180, {2, 0}}, {{0, 0}, 360, {0, 0}},
               {{1, 1}, 77, {1, 1}},  {{1, 3}, 45, {1 + std::sqrt(2.0F), 1 + std::sqrt(2.0F)}}};
  for (const auto& c : cases) {
    ExpectNear(RotateAbout(1, 1, c.point.x, c.point.y, c.degrees), c.expected);
  }
}

TEST(Geometry, StepsAlongATextCircle) {
  ExpectNear(StepBack(5, 5, 90, 2), {5, 7});
  ExpectNear(StepBack(5, 5, 180, 2), {7, 5});
  const float quarter = 3.14159265F;  // a quarter of a circle of radius 2
  const struct {
    float angle, radius, width;
    ArcStep expected;
  } cases[] = {{90, 2, quarter, {2, 0, -90}},
               {90, 2, -quarter, {-2, 0, 90}},
               {90, 2, 0, {0, 2, 0}},
               {90, 0, 5, {0, 0, 0}},
               {90, -2, quarter, {2, 0, 90}}};
  for (const auto& c : cases) {
    const ArcStep got = StepAroundArc(c.angle, c.radius, c.width);
    ExpectNear({got.x, got.y}, {c.expected.x, c.expected.y});
    EXPECT_NEAR(got.tangent, c.expected.tangent, 1e-4F);
  }
}

TEST(Geometry, ArcsAreWalkedInStepsOfOneDegree) {
  const struct {
    const char* what;
    Point start, end;
    bool clockwise;
    std::size_t points;  // with both ends of the walk, and the exact target
    Point tenth;         // after ten degrees
  } cases[] = {{"north to east, clockwise", {0, -1}, {1, 0}, true, 92, {0.1736482F, -0.9848078F}},
               {"east to north, counter-clockwise", {1, 0}, {0, -1}, false, 92, {0.9848078F, -0.1736482F}},
               {"the long way, clockwise", {1, 0}, {0, -1}, true, 272, {0.9848078F, 0.1736482F}},
               {"the long way, counter-clockwise", {0, -1}, {1, 0}, false, 272, {-0.1736482F, -0.9848078F}},
               {"full, clockwise", {1, 0}, {1, 0}, true, 362, {0.9848078F, 0.1736482F}},
               {"full, counter-clockwise", {1, 0}, {1, 0}, false, 362, {0.9848078F, -0.1736482F}},
               {"equal angles, other radius", {2, 0}, {1, 0}, true, 362, {0.9848078F, 0.1736482F}},
               {"radius of the target", {5, 0}, {0, -1}, false, 92, {0.9848078F, -0.1736482F}}};
  for (const auto& c : cases) {
    SCOPED_TRACE(c.what);
    const std::vector<Point> points = Walk(c.start, c.end, {0, 0}, c.clockwise);
    ASSERT_EQ(points.size(), c.points);
    for (const Point& point : points) EXPECT_NEAR(std::hypot(point.x, point.y), 1, 1e-6);
    ExpectNear(points[10], c.tenth);
    EXPECT_EQ(points.back(), c.end);
  }
  // The end lies between two degrees: the last step is the short one.
  const std::vector<Point> points = Walk({1, 0}, PointFromAngle(0, 0, 2.5F, 1), {0, 0}, false);
  ASSERT_EQ(points.size(), 4U);
  ExpectNear(points[2], PointFromAngle(0, 0, 2, 1));
}

TEST(Geometry, TurnsEndWhereTheirAngleSays) {
  const struct {
    float turns;
    bool clockwise;
    std::size_t points;
    Point drawnTo, end;
  } cases[] = {{0.5F, true, 182, {-1, 0}, {-1, 0}}, {-0.25F, false, 92, {0, -1}, {0, -1}},
               {1, true, 362, {1, 0}, {1, 0}},      {-1, false, 362, {1, 0}, {1, 0}},
               {0, true, 362, {1, 0}, {1, 0}},      {2, true, 362, {1, 0}, {1, 0}},
               {1.5F, true, 362, {1, 0}, {-1, 0}},  {-2.25F, false, 362, {1, 0}, {0, -1}}};
  for (const auto& c : cases) {
    SCOPED_TRACE(c.turns);
    const Turn turn = TurnAbout({1, 0}, {0, 0}, c.turns);
    std::size_t points = 0;
    WalkArc(turn.path, [&](Point) { ++points; });
    EXPECT_EQ(points, c.points);
    EXPECT_EQ(turn.path.clockwise, c.clockwise);
    ExpectNear(turn.path.target, c.drawnTo);
    ExpectNear(turn.end, c.end);
  }
  // Whatever the rounding of its end, one turn stays a full circle.
  for (float angle = 0; angle < 360; angle += 0.37F) {
    for (const float turns : {1.0F, -1.0F}) {
      const Turn turn = TurnAbout(PointFromAngle(3, 7, angle, 0.3F), {3, 7}, turns);
      EXPECT_EQ(std::fabs(turn.path.endAngle - turn.path.startAngle), 360) << angle;
    }
  }
}

TEST(Geometry, LengthsOfSegmentsAndArcs) {
  EXPECT_EQ(SegmentLength(1, 1, 1, -2), 3);
  EXPECT_EQ(SegmentLength(-2, 1, 1, 1), 3);
  EXPECT_EQ(SegmentLength(0, 0, 3, 4), 5);
  EXPECT_FLOAT_EQ(ArcLength(0, -2, 2, 0, 0, 0, true), 3.14159F);
  EXPECT_FLOAT_EQ(ArcLength(0, -2, 2, 0, 0, 0, false), 9.42477F);
  EXPECT_FLOAT_EQ(ArcLength(1, 0, 1, 0, 0, 0, false), 6.28318F);
  EXPECT_FLOAT_EQ(ArcLength(2, 0, 1, 0, 0, 0, true), 6.28318F);
  EXPECT_EQ(ArcLength(1, 1, 1, 1, 1, 1, true), 0);
}

TEST(Geometry, ArcsBeyondTheRangeOverflow) {
  EXPECT_THROW(ArcTo({0, 0}, {kLargest, kLargest}, {-kLargest, 0}, true), common::RunTimeError);
  EXPECT_THROW(ArcTo({kLargest, 0}, {-kLargest, 0}, {-kLargest, 0}, true), common::RunTimeError);
  EXPECT_THROW(TurnAbout({1, 0}, {0, 0}, kLargest), common::RunTimeError);
  EXPECT_THROW(ArcLength(0, 0, kLargest, 0, -kLargest, 0, true), common::RunTimeError);
}

}  // namespace
}  // namespace morvane::gcode
