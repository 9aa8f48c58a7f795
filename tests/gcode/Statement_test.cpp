#include "gcode/Statement.h"

#include <gtest/gtest.h>

#include <array>
#include <string>

#include "common/text/Lines.h"
#include "common/text/Numbers.h"
#include "gcode/GcodeProgram.h"

namespace morvane::gcode {
namespace {

// The fields that matter for the word, in one line.
std::string Describe(const Statement& statement) {
  const auto number = [](float value) { return ' ' + common::PlainNumber(value); };
  switch (statement.word) {
    case Word::Unknown:
      return "-";
    case Word::Move:
      return std::string(statement.feed ? "feed" : "rapid") +
             (statement.hasX ? " X" + number(statement.x) : "") +
             (statement.hasY ? " Y" + number(statement.y) : "") +
             (statement.hasZ ? " Z" + number(statement.cx) : "");
    case Word::Arc:
      if (statement.broken) return "broken";
      return (statement.clockwise ? "cw" : "ccw") + number(statement.x) + number(statement.y) +
             number(statement.cx) + number(statement.cy);
    case Word::Turn:
      if (statement.broken) return "broken";
      return "turn" + number(statement.x) + number(statement.cx) + number(statement.cy);
    default:
      return '#' + std::to_string(static_cast<int>(statement.word)) + number(statement.x);
  }
}

// The lines of a text, each described, joined by a bar.
std::string DescribeLines(std::string_view text, bool fold) {
  std::string described;
  common::Lines lines(text);
  for (std::string_view line; lines.Next(line);) {
    described += (described.empty() ? "" : "|") + Describe(ParseStatement(line, fold));
  }
  return described;
}

TEST(Statement, EveryFormOfTheDialect) {
  using Case = std::array<const char*, 2>;
  for (const auto& [lines, expected] :
       {Case{"G90\nG0\n G00X1Y2\ng01x1y1\nN10 anything\nG77X1Y1\n\n", "-|-|-|-|-|-|-"},
        Case{"G00X1.250Y-3.5\nG01X1Y2Z3", "rapid X 1.25 Y -3.5|feed X 1 Y 2 Z 3"},
        Case{"G00X5\nG01X5Z3\nG01X1Z3Y2", "rapid X 5|feed X 5|feed X 1 Y 2"},
        Case{"G00Y5X3\nG01Y.5", "rapid Y 5|feed Y 0.5"},
        Case{"G01XY\nG01XnanYinf", "feed X 0 Y 0|feed X 0 Y 0"},
        Case{"G01X1.5abcY2e1mm\nG01X&H10Y 2", "feed X 1.5 Y 20|feed X 16 Y 2"},
        Case{"G02X1Y2I3J4\nG03X1Y2I3J4K5\nG02XYIJ", "cw 1 2 3 4|ccw 1 2 3 4|cw 0 0 0 0"},
        Case{"G02X1Y2I3\nG02X1Y2J3I4\nG03X1I3J4", "broken|broken|broken"},
        Case{"G05T-.5I1J2P9\nG05T0I1J2P", "turn -0.5 1 2|turn 0 1 2"},
        Case{"G05T2I1J1\nG05T2I1P1\nG05T2J1P1", "broken|broken|broken"},
        Case{"M06T12\nM06T99999\nM06T", "#4 12|#4 32767|#4 0"},
        Case{"W5\nG04P2\nI3\nENDFILE", "#5 0|#6 0|#6 0|#12 0"},
        Case{"S12\nS9\nC8\nC\nVP50.5\nVF1.5\nVM2", "#7 1|#7 0|#8 8|#8 0|#9 50|#10 1.5|#11 2"}})
    EXPECT_EQ(DescribeLines(lines, false), expected) << lines;
  EXPECT_EQ(DescribeLines("g01x1y2z3\ng02X1y2I3j4\nvp80\nend", true),
            "feed X 1 Y 2 Z 3|cw 1 2 3 4|#9 80|#12 0");
}

TEST(GcodeProgram, KeepsStatementsWithTheirLines) {
  std::string text = "G90\r\nG00X1Y1\rcomment\n\nM06T2\r\nnote\r\nnote\r\nG01X2";
  std::string seen;
  ReadProgram(text).ForEach([&](const Statement& statement) {
    seen += std::to_string(statement.line) + ':' + Describe(statement) + ';';
  });
  EXPECT_EQ(seen, "2:rapid X 1 Y 1;5:#4 2;6:-;8:feed X 2;");
  // More than one block.
  std::string large;
  for (int i = 0; i < 20000; ++i) large += "G00X1\n";
  const GcodeProgram program = ReadProgram(large);
  std::uint32_t last = 0;
  program.ForEach([&](const Statement& statement) { EXPECT_EQ(statement.line, ++last); });
  EXPECT_EQ(last, 20000U);
  EXPECT_EQ(program.Size(), 20000U);
}

}  // namespace
}  // namespace morvane::gcode
