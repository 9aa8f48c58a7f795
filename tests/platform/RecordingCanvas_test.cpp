#include "platform/RecordingCanvas.h"

#include <gtest/gtest.h>

namespace morvane::platform {
namespace {

constexpr Pen kThin = {1, 1};
constexpr Pen kWide = {1, 3};

void DrawEverything(Canvas& canvas) {
  canvas.SetScale({1, 2, 3, 4});
  canvas.Line(kThin, {0, 0, 1, 1});
  canvas.Line(kThin, {1, 1, 2, 2});
  canvas.Line(kWide, {2, 2, 3, 3});
  canvas.Box({0, 0, 1, 1}, 7, true);
  canvas.Line(kWide, {3, 3, 4, 4});
  canvas.Circle(1, 1, 2, kWide);
  canvas.Text(5, 6, "note", 9, {});
  canvas.Image("A.BMP", {1, 1, 2, 2});
  canvas.SetScale({0, 0, 9, 9});
}

TEST(RecordingCanvas, JoinsLinesOfOnePenAndKeepsTheOrder) {
  RecordingCanvas first;
  DrawEverything(first);
  RecordingCanvas copy;
  first.Replay(copy);
  for (const RecordingCanvas* canvas : {&first, &copy}) {
    using Kind = RecordingCanvas::Kind;
    const std::pair<Kind, std::uint32_t> expected[] = {{Kind::Scale, 1}, {Kind::Lines, 2}, {Kind::Lines, 1},
                                                       {Kind::Box, 1},   {Kind::Lines, 1}, {Kind::Circle, 1},
                                                       {Kind::Text, 1},  {Kind::Image, 1}, {Kind::Scale, 1}};
    ASSERT_EQ(canvas->Runs().size(), std::size(expected));
    for (std::size_t i = 0; i < std::size(expected); ++i) {
      EXPECT_EQ(canvas->Runs()[i].kind, expected[i].first) << i;
      EXPECT_EQ(canvas->Runs()[i].count, expected[i].second) << i;
    }
    EXPECT_EQ(canvas->Segments()[3].x2, 4);
    EXPECT_TRUE(canvas->Boxes()[0].filled);
    EXPECT_EQ(canvas->Texts()[0].text, "note");
    EXPECT_EQ(canvas->View()->Width, 9);
  }
}

TEST(RecordingCanvas, ClearKeepsTheScaleInForce) {
  RecordingCanvas canvas;
  canvas.Line(kThin, {0, 0, 1, 1});
  canvas.Clear();
  EXPECT_TRUE(canvas.Runs().empty());
  DrawEverything(canvas);
  canvas.Clear();
  canvas.SetScale({5, 5, 5, 5});
  ASSERT_EQ(canvas.Runs().size(), 1U);
  RecordingCanvas copy;
  canvas.Replay(copy);
  EXPECT_EQ(copy.View()->Left, 5);
  EXPECT_TRUE(canvas.Segments().empty());
}

}  // namespace
}  // namespace morvane::platform
