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
  RecordingCanvas first, copy;
  DrawEverything(first);
  first.Replay(copy);
  for (const RecordingCanvas* canvas : {&first, &copy}) {
    std::string runs;
    for (const auto& run : canvas->Runs()) {
      runs += "SLBCTI"[static_cast<int>(run.kind)] + std::to_string(run.count) + ' ';
    }
    EXPECT_EQ(runs, "S1 L2 L1 B1 L1 C1 T1 I1 S1 ");
    EXPECT_EQ(canvas->Segments()[3].x2, 4);
    EXPECT_TRUE(canvas->Boxes()[0].filled);
    EXPECT_EQ(canvas->Texts()[0].text, "note");
    EXPECT_EQ(canvas->View()->Width, 9);
  }

  // Clear keeps the scale in force.
  first.Clear();
  EXPECT_TRUE(first.Segments().empty());
  copy = {};
  first.Replay(copy);
  EXPECT_EQ(copy.View()->Width, 9);
}

}  // namespace
}  // namespace morvane::platform
