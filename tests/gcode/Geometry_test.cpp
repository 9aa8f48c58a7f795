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
  const float diagonal = std::sqrt(2.0F);
  using Case = std::tuple<Point, float, float>;
  for (const auto& [point, angle, radius] :
       {Case{{3, 2}, 0.F, 2.F}, Case{{1, 0}, 90.F, 2.F}, Case{{-1, 2}, 180.F, 2.F}, Case{{1, 4}, 270.F, 2.F},
        Case{{1, 2}, 0.F, 0.F}, Case{{2, 1}, 45.F, diagonal}, Case{{0, 1}, 135.F, diagonal},
        Case{{0, 3}, 225.F, diagonal}, Case{{2, 3}, 315.F, diagonal}}) {
    const AngleRadius got = GetAngleAndRadius(1, 2, point.x, point.y);
    EXPECT_FLOAT_EQ(got.angle, angle) << point.x << ',' << point.y;
    EXPECT_FLOAT_EQ(got.radius, radius);
    ExpectNear(PointFromAngle(1, 2, angle, radius), point);
  }
}

TEST(Geometry, RotateAboutTurnsCounterClockwiseOnTheDisplay) {
  const float reach = 1 + std::sqrt(2.0F);
  using Case = std::tuple<Point, float, Point>;
  for (const auto& [point, degrees, expected] :
       {Case{{2, 1}, 90.F, {1, 0}}, Case{{1, 0}, 90.F, {0, 1}}, Case{{2, 0}, -90.F, {2, 2}},
        Case{{0, 2}, 180.F, {2, 0}}, Case{{0, 0}, 360.F, {0, 0}}, Case{{1, 1}, 77.F, {1, 1}},
        Case{{1, 3}, 45.F, {reach, reach}}}) {
    ExpectNear(RotateAbout(1, 1, point.x, point.y, degrees), expected);
  }
}

TEST(Geometry, StepsAlongATextCircle) {
  ExpectNear(StepBack(5, 5, 90, 2), {5, 7});
  ExpectNear(StepBack(5, 5, 180, 2), {7, 5});
  const float quarter = 3.14159265F;  // a quarter of a circle of radius 2
  using Case = std::tuple<float, float, ArcStep>;
  for (const auto& [radius, width, expected] :
       {Case{2.F, quarter, {2, 0, -90}}, Case{2.F, -quarter, {-2, 0, 90}}, Case{2.F, 0.F, {0, 2, 0}},
        Case{0.F, 5.F, {0, 0, 0}}, Case{-2.F, quarter, {2, 0, 90}}}) {
    const ArcStep got = StepAroundArc(90, radius, width);
    ExpectNear({got.x, got.y}, {expected.x, expected.y});
    EXPECT_NEAR(got.tangent, expected.tangent, 1e-4F);
  }
}

TEST(Geometry, ArcsAreWalkedInStepsOfOneDegree) {
  // Start, end, clockwise; points with both ends of the walk and the exact target; where ten degrees lead.
  using Case = std::tuple<Point, Point, bool, std::size_t, Point>;
  constexpr float kCos = 0.9848078F, kSin = 0.1736482F;
  for (const auto& [start, end, clockwise, count, tenth] :
       {Case{{0, -1}, {1, 0}, true, 92, {kSin, -kCos}}, Case{{1, 0}, {0, -1}, false, 92, {kCos, -kSin}},
        Case{{1, 0}, {0, -1}, true, 272, {kCos, kSin}}, Case{{1, 0}, {1, 0}, false, 362, {kCos, -kSin}},
        Case{{2, 0}, {1, 0}, true, 362, {kCos, kSin}}, Case{{5, 0}, {0, -1}, false, 92, {kCos, -kSin}}}) {
    const std::vector<Point> points = Walk(start, end, {0, 0}, clockwise);
    ASSERT_EQ(points.size(), count);
    for (const Point& point : points) EXPECT_NEAR(std::hypot(point.x, point.y), 1, 1e-6);
    ExpectNear(points[10], tenth);
    EXPECT_EQ(points.back(), end);
  }
  // The end lies between two degrees: the last step is the short one.
  const std::vector<Point> points = Walk({1, 0}, PointFromAngle(0, 0, 2.5F, 1), {0, 0}, false);
  ASSERT_EQ(points.size(), 4U);
  ExpectNear(points[2], PointFromAngle(0, 0, 2, 1));
}

TEST(Geometry, TurnsEndWhereTheirAngleSays) {
  using Case = std::tuple<float, std::size_t, Point, Point>;  // turns, points, drawn to, end
  for (const auto& [turns, count, drawnTo, end] :
       {Case{0.5F, 182U, {-1, 0}, {-1, 0}}, Case{-0.25F, 92U, {0, -1}, {0, -1}},
        Case{1.F, 362U, {1, 0}, {1, 0}}, Case{-1.F, 362U, {1, 0}, {1, 0}}, Case{0.F, 362U, {1, 0}, {1, 0}},
        Case{2.F, 362U, {1, 0}, {1, 0}}, Case{1.5F, 362U, {1, 0}, {-1, 0}},
        Case{-2.25F, 362U, {1, 0}, {0, -1}}}) {
    SCOPED_TRACE(turns);
    const Turn turn = TurnAbout({1, 0}, {0, 0}, turns);
    std::size_t points = 0;
    WalkArc(turn.path, [&](Point) { ++points; });
    EXPECT_EQ(points, count);
    EXPECT_EQ(turn.path.clockwise, turns >= 0);
    ExpectNear(turn.path.target, drawnTo);
    ExpectNear(turn.end, end);
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
  EXPECT_EQ(SegmentLength(0, 0, 3, -4), 5);
  EXPECT_FLOAT_EQ(ArcLength(0, -2, 2, 0, 0, 0, true), 3.14159F);
  EXPECT_FLOAT_EQ(ArcLength(0, -2, 2, 0, 0, 0, false), 9.42477F);
  EXPECT_FLOAT_EQ(ArcLength(1, 0, 1, 0, 0, 0, false), 6.28318F);
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
