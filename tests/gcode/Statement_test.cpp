#include "gcode/Statement.h"

#include <gtest/gtest.h>

#include <string>

#include "common/Numbers.h"
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

TEST(Statement, EveryFormOfTheDialect) {
  const struct {
    const char* line;
    const char* expected;
  } cases[] = {
      {"G90", "-"},
      {"", "-"},
      {"G0", "-"},
      {" G00X1Y2", "-"},
      {"g01x1y1", "-"},
      {"N10 anything", "-"},
      {"G77X1Y1", "-"},
      {"G00X1.250Y-3.5", "rapid X 1.25 Y -3.5"},
      {"G01X1Y2Z3", "feed X 1 Y 2 Z 3"},
      {"G00X5", "rapid X 5"},
      {"G01X5Z3", "feed X 5"},
      {"G01X1Z3Y2", "feed X 1 Y 2"},
      {"G00Y5X3", "rapid Y 5"},
      {"G01Y.5", "feed Y 0.5"},
      {"G01XY", "feed X 0 Y 0"},
      {"G01X1.5abcY2e1mm", "feed X 1.5 Y 20"},
      {"G01XnanYinf", "feed X 0 Y 0"},
      {"G01X&H10Y 2", "feed X 16 Y 2"},
      {"G02X1Y2I3J4", "cw 1 2 3 4"},
      {"G03X1Y2I3J4K5", "ccw 1 2 3 4"},
      {"G02XYIJ", "cw 0 0 0 0"},
      {"G02X1Y2I3", "broken"},
      {"G02X1Y2J3I4", "broken"},
      {"G03X1I3J4", "broken"},
      {"G05T-.5I1J2P9", "turn -0.5 1 2"},
      {"G05T2I1J1", "broken"},
      {"G05T2I1P1", "broken"},
      {"G05T2J1P1", "broken"},
      {"M06T12", "#4 12"},
      {"M06T99999", "#4 32767"},
      {"W5", "#5 0"},
      {"G04P2", "#6 0"},
      {"I3", "#6 0"},
      {"S12", "#7 1"},
      {"S9", "#7 0"},
      {"C8", "#8 8"},
      {"C", "#8 0"},
      {"VP50.5", "#9 50"},
      {"VF1.5", "#10 1.5"},
      {"VM2", "#11 2"},
      {"ENDFILE", "#12 0"},
  };
  for (const auto& c : cases) EXPECT_EQ(Describe(ParseStatement(c.line)), c.expected) << c.line;
}

TEST(Statement, FoldedSmallLettersCount) {
  const struct {
    const char* line;
    const char* expected;
  } cases[] = {
      {"g01x1y2z3", "feed X 1 Y 2 Z 3"},
      {"g02X1y2I3j4", "cw 1 2 3 4"},
      {"G05t1i2j3p4", "turn 1 2 3"},
      {"w5", "#5 0"},
      {"vp80", "#9 80"},
      {"end", "#12 0"},
  };
  for (const auto& c : cases) EXPECT_EQ(Describe(ParseStatement(c.line, true)), c.expected) << c.line;
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
