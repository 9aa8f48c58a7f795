#include "gcode/MeasureDistances.h"

#include <gtest/gtest.h>

#include <string>

#include "common/RunTimeError.h"
#include "gcode/MoveLine.h"

namespace morvane::gcode {
namespace {

TEST(MeasureDistances, CountsAsTheReportDoes) {
  using Case = std::tuple<const char*, double, double>;  // move, feed
  for (const auto& [text, move, feed] :
       {Case{"G90\nG00X3Y4\nG01X3Y10\nG00X0Y10", 8, 6},
        Case{"G00X1Y0\nG02X1Y0I0J0\nG03X0Y-1I0J0", 1, 6.28318 * 1.25}, Case{"G01X3Y4Z9", 0, 5},
        // Y-only moves, turns and small letters are not seen.
        Case{"G01X1Y0\nG01Y5\nG05T1I1J0P0\ng01x9y9\nG01X2Y0", 0, 2},
        // A tool change keeps the position, an unknown line behind it goes to 0, 0 as a rapid.
        Case{"G01X3Y4\nM06T2\nG01X3Y5", 0, 6}, Case{"G01X3Y4\nM06T2\nW5\nG01X3Y4", 5, 10},
        Case{"G01X3Y4\nM06T0\n\nnote\nG01X3Y4", 5, 10}, Case{"G01X3Y4\nnote\nG01X3Y4", 0, 5},
        // A centre of -1 stands for none.
        Case{"G02X3Y4I-1J0", 0, 5}}) {
    const Distances got = MeasureDistances(ReadProgram(text));
    EXPECT_NEAR(got.move, move, 1e-5) << text;
    EXPECT_NEAR(got.feed, feed, 1e-5) << text;
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

}  // namespace
}  // namespace morvane::gcode
