#include <gtest/gtest.h>

#include <cmath>

#include "common/RunTimeError.h"
#include "gcode/DrawFile.h"
#include "gcode/MeasureDistances.h"
#include "platform/RecordingCanvas.h"
#include "support/Mutator.h"

namespace morvane::gcode {
namespace {

class CheckingCanvas : public platform::RecordingCanvas {
 public:
  void SetScale(const platform::CanvasView& view) override {
    EXPECT_TRUE(view.Width > 0 && view.Height > 0 && std::isfinite(view.Left + view.Width));
  }
  void Lines(const platform::Pen& pen, const platform::Segment* segments, std::size_t count) override {
    EXPECT_GE(pen.width, 1);
    for (std::size_t i = 0; i < count; ++i) {
      ASSERT_TRUE(std::isfinite(segments[i].x2) && std::isfinite(segments[i].y2));
    }
  }
};

void Measure(const std::string& bytes) {
  try {
    const Distances distances = MeasureDistances(ReadProgram(bytes));
    EXPECT_TRUE(std::isfinite(distances.move + distances.feed));
  } catch (const common::RunTimeError&) {
    // A move or an arc that lacks a letter.
  }
}

void Show(const std::string& bytes, Viewer viewer) {
  CheckingCanvas canvas;
  PassOptions options;
  options.viewer = viewer;
  options.currentLine = 3;
  options.click = Point{1, 1};
  options.velocityWidth = 2.0F;
  Surface surface;
  ShowFile(ReadProgram(bytes, OptionsOf(viewer).foldToCapitals), options, surface, canvas);
}

void ReadJob(const std::string& bytes) {
  for (const Viewer viewer : {Viewer::Graphic, Viewer::Preview, Viewer::Editor, Viewer::Small}) {
    Show(bytes, viewer);
  }
  Measure(bytes);
}

TEST(JobMutation, NoInputHarmsTheInterpreter) {
  test::RunMutations(
      {
          "G90\r\nG00X0.000Y0.000\r\nG01X1.250Y3.000\r\nG02X3Y2I2J2\r\nG03X1.5Y2I2J2\r\nW5\r\n",
          "G00X1Y2Z3\r\nG01X5\r\nG01Y-2.5\r\nM06T2\r\nG05T.5I1J1P0\r\nM06T16\r\nG01X1E1Y2\r\n",
          "s1\r\nvp50\r\nvf1.5\r\nvm2\r\ng01x1y1\r\ng04p1\r\ni3\r\nc1\r\ng02x1y1i2j2\r\nend\r\n",
      },
      ReadJob);
}

TEST(JobMutation, ALineOfAnyLength) {
  test::RunHugeLine("G01X", "1", Measure);
  test::RunHugeLine("M06T2\r\n", "a comment ", Measure);
  const auto edit = [](const std::string& bytes) { Show(bytes, Viewer::Editor); };
  test::RunHugeLine("G90\r\ng00x1y2\r\nG05T1I", "-1.5e", edit);
}

}  // namespace
}  // namespace morvane::gcode
