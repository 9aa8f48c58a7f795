#include "textjob/preview/Preview.h"

#include <gtest/gtest.h>

#include <cmath>

#include "support/PreviewStation.h"

namespace morvane::textjob {
namespace {

using platform::Segment;

constexpr platform::Color kCyan = 16776960, kRed = 255, kGreen = 65280, kWhite = 16777215, kYellow = 65535;

// "L" goes down the left side, then along the baseline; "|" is one stroke.
constexpr const char* kCorner = "76:0,0,0,1;0,1,1,1";
constexpr const char* kStroke = "124:0.5,0,0.5,1";

class Preview : public testing::Test {
 protected:
  Preview() {
    std::string font;
    for (int code = 1; code <= 255; ++code) {
      font += code == 'L' ? kCorner : code == '|' ? kStroke : std::to_string(code) + ":";
      font += "\r\n";
    }
    station.Put("F.FNT", font);
  }

  // Segments of one pen, in drawing order.
  std::vector<Segment> Lines(platform::Color color, int width) const {
    std::vector<Segment> found;
    for (const auto& run : station.canvas.Runs()) {
      if (run.kind != platform::RecordingCanvas::Kind::Lines || !(run.pen == platform::Pen{color, width}))
        continue;
      for (std::uint32_t i = 0; i < run.count; ++i) found.push_back(station.canvas.Segments()[run.first + i]);
    }
    return found;
  }

  static void ExpectLines(const std::vector<Segment>& drawn, const std::vector<Segment>& expected) {
    ASSERT_EQ(drawn.size(), expected.size());
    for (std::size_t i = 0; i < drawn.size(); ++i) {
      for (float Segment::*part : {&Segment::x1, &Segment::y1, &Segment::x2, &Segment::y2})
        EXPECT_NEAR(drawn[i].*part, expected[i].*part, 2e-6) << i;
    }
  }

  std::string Texts() const {
    std::string texts;
    for (const auto& text : station.canvas.Texts()) texts += text.text + '|';
    return texts;
  }

  test::PreviewStation station;
};

// Position (1, 2), height 0.5: style, angle, radius, text, compress, then the rest of the line.
std::string TextLine(const std::string& style, const std::string& text, const std::string& behind) {
  return "0,1,2,0.5,F.fnt," + style + ',' + text + "@@," + behind;
}

TEST_F(Preview, TextIsStrokedFromTheNearerEnd) {
  station.Draw({TextLine("0,0,0,0", "LL", "1")});
  ExpectLines(Lines(kCyan, 2),
              {{1, 2, 1, 2.5F}, {1, 2.5F, 1.5F, 2.5F}, {1.5F, 2, 1.5F, 2.5F}, {1.5F, 2.5F, 2, 2.5F}});
  // The pen stands at (2, 2.5) now, so the same text runs backward.
  station.Draw({TextLine("0,0,0,0", "LL", "1")});
  ExpectLines(Lines(kCyan, 2),
              {{2, 2.5F, 1.5F, 2.5F}, {1.5F, 2.5F, 1.5F, 2}, {1.5F, 2.5F, 1, 2.5F}, {1, 2.5F, 1, 2}});
  EXPECT_EQ(station.state.PenX, 1);
  EXPECT_EQ(station.state.PenY, 2);
}

TEST_F(Preview, JustificationAngleAndProFonts) {
  const std::string wide = "@@,1,1,0,0,0,0,0,0,0,1,0.2,0,0,0.1";
  using Case = std::tuple<const char*, std::string, Segment>;
  for (const auto& [proFonts, line, first] :
       {Case{"0",
             TextLine("0,0,0,0", "||", "0.5,1,1,0,1,@@,0,0,0,0,0,0,0,0,0,0,9"),
             {0.875F, 2, 0.875F, 2.5F}},
        Case{"0", TextLine("0,0,0,0", "||", "0.5,1,1,0,2"), {0.625F, 2, 0.625F, 2.5F}},
        Case{"1", TextLine("0,0,0,0", "||", "1,1,1,0,1," + wide), {0.85F, 2, 0.85F, 2.5F}},
        Case{"1", TextLine("0,0,0,0", "||", "1,1,1,0,2," + wide), {0.6F, 2, 0.6F, 2.5F}},
        Case{"0", TextLine("2,0,90,0", "||", "1"), {1.5F, 1.25F, 1, 1.25F}}}) {
    station.state = {};
    station.Set("ProFonts", proFonts);
    station.Draw({line});
    SCOPED_TRACE(line);
    ASSERT_EQ(Lines(kCyan, 2).size(), 2U);
    ExpectLines({Lines(kCyan, 2)[0]}, {first});
  }
}

// One character at the top of a circle of radius 1: its baseline's middle sits on the circle.
TEST_F(Preview, ArcText) {
  ViewOptions marks;
  marks.ReferenceMarks = true;
  station.Draw({TextLine("1,0,90,1", "|", "1")}, marks);
  ExpectLines(Lines(kCyan, 2), {{1, 1.5F, 1, 2}});
  ASSERT_EQ(station.canvas.Circles().size(), 1U);
  const auto& circle = station.canvas.Circles()[0];
  EXPECT_NEAR(circle.y, 3, 2e-6);
  EXPECT_EQ(circle.radius, 1);
  // Two characters stand half an advance to each side: 0.25 of a radian, so the left one leans by it.
  station.state = {};
  station.Draw({TextLine("1,0,90,1", "||", "1")});
  const double s = std::sin(0.25);
  const double c = std::cos(0.25);
  const auto x = [&](double r) { return static_cast<float>(1 - r * s); };
  const auto y = [&](double r) { return static_cast<float>(3 - r * c); };
  ASSERT_EQ(Lines(kCyan, 2).size(), 2U);
  ExpectLines({Lines(kCyan, 2)[0]}, {{x(1.5), y(1.5), x(1), y(1)}});
  // A radius of 0 puts all at one point.
  station.state = {};
  station.Draw({TextLine("1,0,90,0", "||", "1")});
  ExpectLines(Lines(kCyan, 2), {{1, 1.5F, 1, 2}, {1, 1.5F, 1, 2}});
}

// The radius shrinks by a third of the height at each of the three layout runs, while it has the sign.
TEST_F(Preview, RadiusTextMovesInByAFullHeight) {
  using Case =
      std::tuple<std::string, std::string, float>;  // distance of the baseline above the centre (1, 2)
  for (const auto& [radius, location, baseline] :
       {Case{"1", "0", 1.F}, Case{"1", "1", 0.5F}, Case{"-1", "0", -1.5F}, Case{"-1", "1", -1.F},
        Case{"0.2", "1", 0.2F - 1 / 3.0F}}) {
    SCOPED_TRACE(radius + location);
    station.state = {};
    station.Draw({TextLine("3,0,90," + radius, "|", "1,1,1,0,0,@@,1,1,0," + location)});
    ExpectLines(Lines(kCyan, 2), {{1, 1.5F - baseline, 1, 2 - baseline}});
  }
}

TEST_F(Preview, SubstitutionByType) {
  using Case = std::tuple<std::string, std::string, float>;
  for (const auto& [type, text, firstX] : {Case{"0", "%%|%%", 0.5F}, Case{"8", "%%|%%", 0.5F},
                                           Case{"1", "%%|%%", 2.5F}, Case{"3", "%%l%%", 2.F}}) {
    station.state = {};
    station.Draw({type + ",0,0,1,F,0,0,0,0," + text + "@@,1"});
    ASSERT_FALSE(Lines(kCyan, 2).empty()) << type;
    EXPECT_EQ(Lines(kCyan, 2)[0].x1, firstX) << type;
  }
}

TEST_F(Preview, PointsShowTheirLegWithTheToolPath) {
  ViewOptions path;
  path.ToolPath = true;
  for (const char* type : {"4", "7", "10", "11", "14"}) {
    station.state = {};
    station.Draw({std::string(type) + ",1,2"}, path);
    ExpectLines(Lines(kGreen, 1), {{0, 0, 1, 2}, {1, 2, 0, 0}});
    EXPECT_EQ(station.state.PenX, 0);
    station.Draw({std::string(type) + ",1,2"});
    EXPECT_TRUE(station.canvas.Segments().empty());
    EXPECT_EQ(station.state.PenX, 1);
  }
}

TEST_F(Preview, CrossesLabelsAndSelection) {
  ViewOptions marks;
  marks.ReferenceMarks = true;
  station.job.Selection = "1,3,77,x";
  const PreviewResult result = station.Draw({"4,1,1", "0,2,2,1,F,0,0,0,0,@@,", "12,3,3", "4,4,4"}, marks);
  EXPECT_EQ(result.labels,
            (std::vector<std::string>{"Line 1: MOVE", "Line 2: ", "Line 3: START", "Line 4: MOVE"}));
  EXPECT_EQ(result.current, 3);
  ExpectLines(Lines(kYellow, 1), {{0.98F, 1, 1.02F, 1}, {1, 0.98F, 1, 1.02F}});
  ExpectLines(Lines(kRed, 1),
              {{1.98F, 2, 2.02F, 2}, {2, 1.98F, 2, 2.02F}, {3.98F, 4, 4.02F, 4}, {4, 3.98F, 4, 4.02F}});
}

TEST_F(Preview, GraphicsAreScaledTurnedAndPlaced) {
  station.Put("G.JOB",
              "G90\r\nG00X1Y0\r\nG01X2Y0\r\ng01X9Y9\r\n G01X9Y9\r\nG01Y9\r\nW5\r\nG00X2Y1Z3\r\nG01X0Y1\r\n");
  using Case = std::pair<std::string, std::vector<Segment>>;
  for (const auto& [line, lines] :
       {Case{"2,1,2,0,,0,0,0,0,g.job@@,0.5", {{1.5F, 2, 2, 2}, {2, 2.5F, 1, 2.5F}}},
        Case{"9,1,2,0,,0,0,0,0,G.JOB@@,1,1,1,0,0,@@,2,1,0", {{3, 2, 5, 2}, {5, 3, 1, 3}}},
        // Turned clockwise.
        Case{"13,1,2,0,,0,0,0,0,G.JOB@@,1,1,1,0,0,@@,1,1,90", {{1, 3, 1, 4}, {0, 4, 0, 2}}},
        Case{"15,7,7,0,,0,0,0,0,G.JOB@@,5,1,1,0,0,@@,3,3,45", {{1, 0, 2, 0}, {2, 1, 0, 1}}},
        Case{"2,1,2,0,,0,0,0,0,NONE.JOB@@,", {}}, Case{"2,1,2,0,,0,0,0,0,@@,", {}},
        Case{"2,1,2,0,,0,0,0,0,../G.JOB@@,", {}}}) {
    SCOPED_TRACE(line);
    station.Draw({line});
    ExpectLines(Lines(kCyan, 2), lines);
    EXPECT_EQ(station.canvas.Circles().size(), lines.empty() ? 0U : 1U);
  }
  EXPECT_TRUE(station.prompts.boxes.empty());
}

TEST_F(Preview, ArcsOfGraphics) {
  using Case = std::tuple<std::string, std::size_t, float, float>;  // links, and where it ends
  for (const auto& [arc, links, x, y] :
       {Case{"G02X1Y0I0J0", 92, 1, 0}, Case{"G03X1Y0I0J0", 272, 1, 0}, Case{"G05T.5I0J0P0", 182, 0, 1},
        Case{"G05T-.25I0J0P0", 92, -1, 0}}) {
    SCOPED_TRACE(arc);
    station.Put("A.JOB", "G00X0Y-1\r\n" + arc + "\r\n");
    station.state = {};
    station.Draw({"2,0,0,0,,0,0,0,0,A.JOB@@,1"});
    ASSERT_EQ(Lines(kCyan, 2).size(), links);
    ExpectLines({{station.state.PenX, station.state.PenY, 0, 0}}, {{x, y, 0, 0}});
  }
  station.Put("A.JOB", "G01X1Y0\r\nG02X1Y1I0\r\nG01X5Y5\r\n");
  station.Draw({"2,0,0,0,,0,0,0,0,A.JOB@@,1"});
  EXPECT_EQ(Lines(kCyan, 2).size(), 1U) << "an arc without its centre ends the file";
}

TEST_F(Preview, PanelsSymbolsAndRasters) {
  station.Put("P.PAN", "3\r\n2\r\n");
  station.Put("S.DM", "10x10\r\n0\r\n.1\r\n1\r\n\r\n\r\n\r\n\r\n\r\nABC@ENDDM@");
  station.Put("Temp/x", "");
  station.Expect("out.txt", "\"* \"\r\n\" *\"\r\n");
  station.Draw({"5,1,1,0,,0,0,0,0,p.pan@@,", "6,2,2,0,,0,0,0,0,s.dm@@,"});
  ExpectLines(Lines(kCyan, 2), {{1, 1, 4, 1}, {4, 1, 4, 3}, {4, 3, 1, 3}, {1, 3, 1, 1}});
  EXPECT_EQ(Texts(), "P.PAN|");
  ASSERT_EQ(station.canvas.Boxes().size(), 3U);
  EXPECT_NEAR(station.canvas.Boxes()[2].box.x, 2.1F, 1e-6);

  station.Put("AUTO.DM", "Automatic\r\n0\r\n.1\r\n1\r\n\r\n\r\n\r\n\r\n\r\nABC@ENDDM@");
  station.ExpectEnd(3);
  station.Draw({"6,0,0,0,,0,0,0,0,AUTO.DM@@,", "5,1,1,0,,0,0,0,0,NONE.PAN@@,", "16,1,1,1,,0,0,0,0,R.RAS@@,"});
  ExpectLines(Lines(kCyan, 2), {{0, 0, 2, 0}, {2, 0, 2, 2}, {2, 2, 0, 2}, {0, 2, 0, 0}});
  EXPECT_EQ(Texts(), "AUTO.DM (AutoSize)|NONE.PAN|");

  station.Put("R.RAS", "raster");
  const std::string raster = "16,1,1,0.5,,0,0,0,0,r.ras@@,1,1,1,0,0,@@,1,1,0,0,0,0,0,0,0,1,0.75";
  station.ExpectNoStart();
  station.Draw({raster, raster});
  EXPECT_EQ(station.prompts.Texts(), std::vector<std::string>{"PIXBAKE.EXE not found"});
  EXPECT_TRUE(station.canvas.Images().empty());
  station.Put("PIXBAKE.EXE", "program");
  const std::string header("BM............\x28\0\0\0\4\0\0\0\2\0\0\0", 26);  // 4 by 2 pixels
  station.Expect("Temp/R.BMP", header);
  station.Draw({raster});
  ASSERT_EQ(station.canvas.Images().size(), 1U);
  EXPECT_EQ(station.canvas.Images()[0].place.width, 0.75F);
}

// type, diameter, rows, pitch, columns, pitch, sides, flat, ... length
std::string FixtureFile(const std::string& start, const std::string& length) {
  return start + "\r\n0\r\n0\r\n\r\n\r\n\r\n" + length + ",True\r\n0,0@@\r\n";
}

TEST_F(Preview, FixturesChangeTheViewAndRepeatWhatIsMarked) {
  ViewOptions options;
  options.Fixture = true;
  options.ToolPath = true;
  station.Set("Fixture", "F.FIX");
  station.Put("F.FIX", FixtureFile("0\r\n1\r\n2\r\n0.5\r\n2\r\n3\r\n1\r\n1", "0"));
  station.Put("G.JOB", "G00X1Y0\r\nG01X2Y0\r\n");
  station.Draw({"15,0,0,0,,0,0,0,0,G.JOB@@,"}, options);
  ExpectLines(Lines(kWhite, 1), {{0, 0, 0, 1}, {3, 0, 3, 1}, {0, 0, 6, 0}, {0, 0.5F, 6, 0.5F}});
  ExpectLines(Lines(kWhite, 2), {{1, 0.5F, 2, 0.5F}, {4, 0, 5, 0}, {4, 0.5F, 5, 0.5F}});
  EXPECT_EQ(Lines(kGreen, 1).size(), 2U);

  station.Put("F.FIX", FixtureFile("2\r\n1\r\n1\r\n1\r\n1\r\n1\r\n4\r\n0.5", "0"));
  PreviewResult result = station.Draw({"4,1,1,0,,0,0,0,0,@@,1,3"}, options);
  EXPECT_EQ(result.view.Height, 4) << "six wide keeps the scale";
  ExpectLines(Lines(kWhite, 1), {{0, 0, 6, 0}, {0, .5F, 6, .5F}, {0, 1, 6, 1}, {0, 1.5F, 6, 1.5F}});
  ExpectLines(Lines(kGreen, 1), {{0, 0, 1, 2}, {1, 2, 0, 0}});

  station.Put("F.FIX", FixtureFile("4\r\n10\r\n1\r\n1\r\n1\r\n1\r\n4\r\n0.5", "2"));
  result = station.Draw({}, options);
  EXPECT_NEAR(result.view.Width, 31.4159F * 1.5F, 1e-4);

  station.Put("F.FIX", "2\r\nshort");
  result = station.Draw({}, options);
  EXPECT_NEAR(result.view.Height, 31.4159F, 1e-4) << "the last fixture stays in force";
  station.Set("Fixture", "");
  EXPECT_EQ(station.Draw({}, options).view.Height, 4);
}

TEST_F(Preview, HugeCountsStopAtTheirLimits) {
  ViewOptions options;
  options.Fixture = options.GridLines = true;
  station.Set("Fixture", "F.FIX");
  station.Set("GridSpacing", "1e-9");
  station.Put("F.FIX", FixtureFile("0\r\n1\r\n32767\r\n1\r\n32767\r\n1\r\n1\r\n1", "0"));
  station.Put("G.JOB", "G01X2Y0\r\n");
  station.Draw({"15,0,0,0,,0,0,0,0,G.JOB@@,"}, options);
  EXPECT_EQ(Lines(kWhite, 2).size(), 1000U);
  EXPECT_EQ(Lines(kWhite, 1).size(), 4000U);
}

TEST_F(Preview, ViewGridAndBackground) {
  ViewOptions options;
  options.GridLines = true;
  PreviewResult result = station.Draw({}, options);
  EXPECT_TRUE(result.view.Width == 6 && result.view.Height == 4);
  EXPECT_EQ(Lines(kWhite, 1).size(), 5U + 3U);
  options = {};
  options.BackgroundImage = true;
  station.Set("UseImageSize", "1");
  station.Set("BackgroundImage", "PIC.BMP");
  station.Set("BackgroundImageX", "1");
  station.Put("PIC.BMP", "BM");
  station.picture = {400, 400};
  result = station.Draw({}, options);
  EXPECT_TRUE(result.view.Width == 3 && result.view.Height == 3);
  ASSERT_EQ(station.canvas.Images().size(), 1U);
  EXPECT_EQ(station.canvas.Images()[0].name, "PIC.BMP");
  EXPECT_EQ(station.canvas.Images()[0].place.x, 1);
  // The job's own picture takes the place of the settings'.
  station.Put("LockImages.txt", "job.tjb,OWN.BMP,0,0,8,5\r\n");
  station.Put("OWN.BMP", "BM");
  result = station.Draw({}, options);
  EXPECT_EQ(result.view.Width, 8);
  EXPECT_EQ(station.canvas.Images()[0].name, "OWN.BMP");
  for (const char* name : {"../PIC.BMP", "NONE.BMP"}) {
    station.Put("LockImages.txt", std::string("JOB.TJB,") + name + ",0,0,1,1\r\n");
    station.Draw({}, options);
    EXPECT_TRUE(station.canvas.Images().empty()) << name;
  }
}

TEST_F(Preview, AClickFindsTheNearestLine) {
  station.Put("G.JOB", "G00X1Y0\r\nG01X2Y0\r\n");
  const std::vector<std::string> lines = {"4,1,1", "15,0,0,0,,0,0,0,0,G.JOB@@,", "12,3,3",
                                          TextLine("0,0,0,0", "L", "1")};
  using Case = std::tuple<float, float, int>;
  for (const auto& [x, y, line] : {Case{1, 1.1F, 0}, Case{2.1F, 0, 1}, Case{3, 3, 3}, Case{1.4F, 2.6F, 3},
                                   Case{20000, 0, -1}, Case{0.1F, 0, 1}}) {
    ClickSearch search{x, y};
    station.Draw(lines, {}, &search);
    EXPECT_EQ(search.line, line) << x << ' ' << y;
  }
}

TEST_F(Preview, AMissingFontIsToldOnceForEachName) {
  const std::string other = "0,0,0,1,NONE.fnt,0,0,0,0,L@@,1";
  station.Draw({TextLine("0,0,0,0", "L", "1"), other, other});
  EXPECT_EQ(station.prompts.Texts(), std::vector<std::string>{"Font File Error: File not found"});
  EXPECT_EQ(Lines(kCyan, 2).size(), 6U) << "drawn with the entries that stand";
  station.Draw({other, TextLine("0,0,0,0", "L", "1"), other});
  EXPECT_EQ(station.prompts.boxes.size(), 1U) << "every key in the editor draws anew";
  station.Put("BAD.FNT", std::string(75, '\n') + "x:0,0,1,1\r\n");
  station.Draw({"0,0,0,1,BAD,0,0,0,0,L@@,1", "15,0,0,0,,0,0,0,0,@@,", TextLine("0,0,0,0", "|", "1")});
  EXPECT_EQ(Lines(kCyan, 2).size(), 1U) << "a bad character leaves out its line only";
}

}  // namespace
}  // namespace morvane::textjob
