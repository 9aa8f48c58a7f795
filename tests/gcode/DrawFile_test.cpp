#include "gcode/DrawFile.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <limits>
#include <string>

#include "common/text/Numbers.h"
#include "platform/RecordingCanvas.h"

namespace morvane::gcode {
namespace {

using platform::RecordingCanvas;

// A drawing as text: "c255 w2 0,0>1,1; o1,1 c65280 w2;" for a line and a round mark.
class DrawingText : public RecordingCanvas {
 public:
  std::string text;
  void Clear() override { text.clear(); }
  void SetScale(const platform::CanvasView&) override {}
  void Lines(const platform::Pen& pen, const platform::Segment* segments, std::size_t count) override {
    for (std::size_t i = 0; i < count; ++i) {
      const platform::Segment& s = segments[i];
      text += PenText(pen) + At(s.x1, s.y1) + '>' + At(s.x2, s.y2) + "; ";
    }
  }
  void Circle(float x, float y, float, const platform::Pen& pen) override {
    text += 'o' + At(x, y) + ' ' + PenText(pen) + "; ";
  }

 private:
  static std::string At(float x, float y) { return common::PlainNumber(x) + ',' + common::PlainNumber(y); }
  static std::string PenText(const platform::Pen& pen) {
    return 'c' + std::to_string(pen.color) + " w" + std::to_string(pen.width) + ' ';
  }
};

GcodeProgram Read(const PassOptions& options, const std::string& text) {
  return ReadProgram(text, OptionsOf(options.viewer).foldToCapitals);
}

std::string Draw(const PassOptions& options, const std::string& text, PassState* state = nullptr) {
  DrawingText canvas;
  const PassState end = DrawFile(Read(options, text), options, canvas);
  if (state) *state = end;
  return canvas.text;
}

PassOptions Options(Viewer viewer) {
  PassOptions options;
  options.viewer = viewer;
  options.settings = {
      .feed = 10, .current = 11, .rapid = 12, .background = 14, .lineWidth = 3, .referenceLength = 0.5F};
  return options;
}

bool Near(const std::array<float, 4>& got, const std::array<float, 4>& expected) {
  for (std::size_t i = 0; i < got.size(); ++i) {
    if (std::fabs(got[i] - expected[i]) > 1e-6F) return false;
  }
  return true;
}

TEST(DrawFile, ViewersKnowTheirOwnWords) {
  const std::string cross = "c12 w1 -0.5,0>0.5,0; c12 w1 0,-0.5>0,0.5; ";
  using Case =
      std::array<std::string, 5>;  // the text, then what graphic, preview, editor and small show of it
  for (const auto& [text, graphic, preview, editor, small] :
       {Case{"G01X1Y1\nG00X2Y1\nG01X3\nG01Y2\ng01x4y4\nM06T3\nG01X5Y5",
             "c255 w3 0,0>1,1; c12 w1 1,1>2,1; c255 w3 2,1>3,1; c255 w3 3,1>3,2; c65280 w3 3,2>5,5; ",
             "c10 w1 0,0>1,1; c12 w1 1,1>2,1; c10 w1 2,1>3,1; c10 w1 3,1>3,2; c10 w1 3,2>5,5; ",
             "c10 w3 0,0>1,1; c12 w1 1,1>2,1; c10 w3 2,1>3,1; c10 w3 3,1>3,2; c10 w3 3,2>4,4; c10 w3 "
             "4,4>5,5; ",
             "c0 w1 0,0>1,1; c255 w1 1,1>2,1; c0 w1 2,1>5,5; "},
        Case{"W5\nG04\nI1", "o0,0 c12 w3 ; ", "", "o0,0 c12 w3 ; " + cross + cross, ""},
        // A broken arc ends the pass where the word is known.
        Case{"G01X1Y0\nG02X1Y1\nG01X2Y0", "c255 w3 0,0>1,0; ", "c10 w1 0,0>1,0; ", "c10 w3 0,0>1,0; ",
             "c0 w1 0,0>1,0; c0 w1 1,0>2,0; "},
        Case{"G05T1I2\nG01X1Y0", "", "", "", "c0 w1 0,0>1,0; "}}) {
    EXPECT_EQ(Draw(Options(Viewer::Graphic), text), graphic) << text;
    EXPECT_EQ(Draw(Options(Viewer::Preview), text), preview) << text;
    EXPECT_EQ(Draw(Options(Viewer::Editor), text), editor) << text;
    EXPECT_EQ(Draw(Options(Viewer::Small), text), small) << text;
  }
}

TEST(DrawFile, ToolsAloneAndTogether) {
  const std::string job = "G01X1Y0\nM06T2\nG00X2Y0\nG01X3Y0\nG02X5Y0I4J0\nM06T17\nG00X6Y0\nG01X7Y0\nG01X8Y0";
  PassOptions options = Options(Viewer::Graphic);
  options.allTools = false;
  PassState state;
  // An arc of a hidden tool is one straight line, a tool that does not exist is just not shown.
  EXPECT_EQ(Draw(options, job, &state),
            "c255 w3 0,0>1,0; c14 w1 1,0>2,0; c14 w3 2,0>3,0; c14 w3 3,0>5,0; c14 w1 5,0>6,0; "
            "c14 w3 6,0>7,0; c14 w3 7,0>8,0; ");
  EXPECT_EQ(state.Extents, (Extents{8, 0, 1, 0}));
  EXPECT_FALSE(state.Failed);
  options.allTools = true;
  Draw(options, job, &state);
  EXPECT_TRUE(state.Failed);
  EXPECT_EQ(state.X, 6);
}

TEST(DrawFile, HiddenRapidsStillMoveAndMeasure) {
  PassOptions options = Options(Viewer::Preview);
  options.showRapids = false;
  PassState state;
  EXPECT_EQ(Draw(options, "G00X4Y-2\nG00X1Y5Z7\n", &state), "");
  EXPECT_EQ(state.Extents, (Extents{4, 5, 1, -2}));
  EXPECT_EQ(state.Z, 7);
  EXPECT_EQ(GetExtents(Read(options, "G00X-4Y-2"), options).Extents, (Extents{0, 0, -4, -2}));
}

TEST(DrawFile, ArcsReachToTheirBulge) {
  const PassOptions options = Options(Viewer::Preview);
  // Largest x and y, smallest x and y.
  using Case = std::pair<const char*, std::array<float, 4>>;
  for (const auto& [text, expected] :
       {Case{"G00X1Y2\nG02X3Y2I2J2", {3, 2, 1, 1}}, Case{"G00X1Y2\nG03X3Y2I2J2", {3, 3, 1, 2}},
        Case{"G00X1Y2\nG02X1Y2I2J2", {3, 3, 1, 1}}, Case{"G00X2Y1\nG05T.5I2J2P1", {3, 3, 2, 1}},
        Case{"G00X2Y1\nG05T-3.5I2J2P1", {3, 3, 1, 1}}}) {
    const Extents got = GetExtents(Read(options, text), options).Extents;
    EXPECT_TRUE(Near({got.MaxX, got.MaxY, got.MinX, got.MinY}, expected)) << text;
  }
}

TEST(DrawFile, EditorKeepsTheStateOfTheMachine) {
  PassOptions options = Options(Viewer::Editor);
  PassState state;
  Draw(options, "S1\nS82\nC1\nS9\nVP50\nVF1.5\nVM2.5\nEND\nG01X3Y4Z5", &state);
  EXPECT_TRUE(!state.Outputs[0] && state.Outputs[7] && state.Ended);
  EXPECT_EQ(state.VelocityPercent, 50);
  EXPECT_TRUE(state.FeedSpeed == 1.5F && state.MoveSpeed == 2.5F && state.Z == 5);

  options.currentLine = 2;
  EXPECT_EQ(Draw(options, "G00X1Y0\nG01X2Y0\nW1"),
            "c12 w1 0,0>1,0; c11 w3 1,0>2,0; c11 w1 0.5,0>1.5,0; c11 w1 1,-0.5>1,0.5; "
            "c11 w1 1.5,0>2.5,0; c11 w1 2,-0.5>2,0.5; o2,0 c12 w3 ; ");
  options.currentLine = 0;
  options.velocityWidth = 5.0F;
  EXPECT_EQ(Draw(options, "VP50\nG01X1Y0\nVP-9\nG01X2Y0\nVP0\nG01X3Y0", &state),
            "c10 w10 0,0>1,0; c10 w1 1,0>2,0; ");
  EXPECT_TRUE(state.Failed);
}

TEST(DrawFile, TheMoveNearestAClick) {
  PassOptions options = Options(Viewer::Editor);
  PassState state;
  options.click = Point{2, 1};
  Draw(options, "G90\nG00X1Y1\nG01X1.5Y1\nG01X1.4Y1\nG02X2Y3I2J2", &state);
  EXPECT_EQ(state.NearestLine, 3U);  // a tie with the line behind it
  EXPECT_EQ(state.NearestDistance, 0.5F);
}

TEST(ShowFile, MeasuresThenScalesThenDraws) {
  const PassOptions options = Options(Viewer::Graphic);
  Surface surface;
  surface.width = surface.height = 100;
  RecordingCanvas canvas;
  ShowFile(Read(options, "G01X2Y1\nG01X3Y2"), options, surface, canvas);
  EXPECT_EQ(canvas.Segments().size(), 2U);
  EXPECT_FLOAT_EQ(canvas.View()->Left, 1.95F);
  EXPECT_FLOAT_EQ(canvas.View()->Top, 0.95F);
  EXPECT_FLOAT_EQ(canvas.View()->Width, 1.3F);
  // A failure leaves the scale, and what was drawn up to it.
  for (const char* text : {"G01X9Y9\nG02X1", "G01X9Y9\nM06T99\nG01X1Y1", "G01X9Y9\nG05T1E38I0J0P0",
                           "G01X9Y9\nG02X1Y1I3.4E38J-3.4E38"}) {
    ShowFile(Read(options, text), options, surface, canvas);
    EXPECT_FLOAT_EQ(canvas.View()->Left, 1.95F) << text;
    EXPECT_EQ(canvas.Segments().size(), 1U) << text;
  }
  // The small viewer's surface is set by hand.
  surface.view = Shifted(Zoomed(kFirstScale, 0.5F), -2);
  ShowFile(Read(options, "G01X2Y1"), Options(Viewer::Small), surface, canvas);
  EXPECT_EQ(canvas.View()->Left, -6);
  EXPECT_EQ(canvas.View()->Width, 3);
}

TEST(SetScale, OneUnitIsAsLongInXAsInY) {
  using Case = std::tuple<Extents, float, float, std::array<float, 4>>;
  for (const auto& [extents, width, height, expected] :
       {Case{{}, 500.F, 500.F, {-0.05F, -0.05F, 1.3F, 1.3F}},
        Case{{1, 4, 0, 0}, 1200.F, 800.F, {-0.05F, -0.05F, 6.45F, 4.3F}},
        Case{{4, 0, 0, 0}, 1200.F, 300.F, {-0.05F, -0.05F, 5.2F, 1.3F}},
        Case{{0, 0, -4, -2}, 100.F, 100.F, {-4.05F, -2.05F, 5.3F, 5.3F}},
        Case{{8, 6, 5, 3}, 200.F, 100.F, {4.95F, 2.95F, 6.6F, 3.3F}}}) {
    const platform::CanvasView got = SetScale(extents, width, height);
    EXPECT_TRUE(Near({got.Left, got.Top, got.Width, got.Height}, expected)) << expected[2];
  }
  constexpr float kLargest = std::numeric_limits<float>::max();
  EXPECT_ANY_THROW(SetScale({1e9F, 1e9F, 1e9F, 1e9F}, 100, 100));
  EXPECT_ANY_THROW(SetScale({kLargest, 0, -kLargest, 0}, 100, 100));
  EXPECT_ANY_THROW(SetScale({1, 1, 0, 0}, 0, 100));
}

}  // namespace
}  // namespace morvane::gcode
