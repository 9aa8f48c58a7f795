#include "gcode/MeasureDistances.h"

#include <gtest/gtest.h>

#include <string>

#include "common/RunTimeError.h"
#include "gcode/MoveLine.h"

namespace morvane::gcode {
namespace {

TEST(MeasureDistances, CountsAsTheReportDoes) {
  const struct {
    const char* text;
    double move, feed;
  } cases[] = {{"", 0, 0},
               {"G90\nG00X3Y4\nG01X3Y10\nG00X0Y10", 8, 6},
               {"G00X1Y0\nG02X1Y0I0J0\nG03X0Y-1I0J0", 1, 6.28318 * 1.25},
               {"G01X3Y4Z9", 0, 5},
               // Y-only moves, turns and small letters are not seen.
               {"G01X1Y0\nG01Y5\nG05T1I0J0P0\ng01x9y9\nG01X2Y0", 0, 2},
               // A tool change keeps the position, an unknown line behind it goes to 0, 0 as a rapid.
               {"G01X3Y4\nM06T2\nG01X3Y5", 0, 6},
               {"G01X3Y4\nM06T2\nW5\nG01X3Y4", 5, 10},
               {"G01X3Y4\nM06T0\n\nnote\nG01X3Y4", 5, 10},
               {"G01X3Y4\nnote\nG01X3Y4", 0, 5},
               // A centre of -1 stands for none.
               {"G02X3Y4I-1J0", 0, 5}};
  for (const auto& c : cases) {
    const Distances got = MeasureDistances(ReadProgram(c.text));
    EXPECT_NEAR(got.move, c.move, 1e-5) << c.text;
    EXPECT_NEAR(got.feed, c.feed, 1e-5) << c.text;
  }
  for (const char* text : {"G00X1", "G01X1Z2", "G02X1Y1I1", "G01X3E38Y0\nG01X-3E38Y0"}) {
    EXPECT_THROW(MeasureDistances(ReadProgram(text)), common::RunTimeError) << text;
  }
}

TEST(MoveLine, WritesWhatItReads) {
  const std::string job =
      "M06T3\r\nG00X-0.500Y0.000\r\nG01X1.250Y3.000\r\nG02X1.000Y2.000I3.000J4.000\r\n"
      "G03X0.000Y2.000I0.000J-4.000\r\n";
  std::string written;
  common::Lines file(job);
  MoveLine move;
  std::string_view text;
  while (ReadMoveLine(file, text, move)) WriteMoveLine(written, move, "0.000");
  EXPECT_EQ(written, job);
}

TEST(MoveLine, OtherLinesRepeatTheLastPoint) {
  common::Lines file("G03X1Y2I3J4\nW5\nM06T2\nG01Y7\n");
  MoveLine move;
  std::string_view text;
  ASSERT_TRUE(ReadMoveLine(file, text, move));
  EXPECT_TRUE(move.HasCenter());
  ASSERT_TRUE(ReadMoveLine(file, text, move));
  EXPECT_EQ(text, "W5");
  EXPECT_FALSE(move.HasCenter());
  EXPECT_TRUE(move.feed);
  EXPECT_EQ(move.x, 1);
  ASSERT_TRUE(ReadMoveLine(file, text, move));
  EXPECT_EQ(move.tool, 2);
  ASSERT_TRUE(ReadMoveLine(file, text, move));
  EXPECT_EQ(move.tool, -1);
  EXPECT_FALSE(move.feed);
  EXPECT_EQ(move.y, 0);
  EXPECT_FALSE(ReadMoveLine(file, text, move));
}

}  // namespace
}  // namespace morvane::gcode
