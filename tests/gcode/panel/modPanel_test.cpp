#include "gcode/panel/modPanel.h"

#include <gtest/gtest.h>

#include "common/Numbers.h"
#include "support/FakeFileSystem.h"

namespace morvane::gcode::panel {
namespace {

// 12 lines before the power levels.
const std::string kHead = "12\r\n24.5\r\n0.05\r\n1\r\n2\r\n3\r\n4\r\n5\r\n6\r\n0.25\r\n-0.5\r\nFalse\r\n";

std::string Levels(int count) {
  std::string lines;
  for (int i = 0; i < count; ++i) lines += common::PlainNumber(std::int32_t{i}) + "\r\n";
  return lines;
}

TEST(modPanel, ReadsEveryFieldAndWritesTheSameBytes) {
  const std::string bytes = kHead + Levels(100);
  const Panel panel = ParsePanel(bytes);
  const float numbers[] = {panel.Width,  panel.Height, panel.Spacing, panel.XLow,
                           panel.XHigh,  panel.XAccel, panel.YLow,    panel.YHigh,
                           panel.YAccel, panel.Margin, panel.Backlash};
  const float expected[] = {12, 24.5F, 0.05F, 1, 2, 3, 4, 5, 6, 0.25F, -0.5F};
  EXPECT_TRUE(std::equal(std::begin(numbers), std::end(numbers), std::begin(expected)));
  EXPECT_FALSE(panel.Mirror);
  EXPECT_EQ(panel.Power.front(), 0);
  EXPECT_EQ(panel.Power.back(), 99);
  EXPECT_EQ(FormatPanel(panel), bytes);
  EXPECT_EQ(FormatPanel(ParsePanel(bytes + "surplus\r\n")), bytes);
}

TEST(modPanel, AShortFileLeavesDefaults) {
  const std::string defaults = "48\r\n96\r\n0.1\r\n0.5\r\n5\r\n10\r\n0.5\r\n5\r\n10\r\n0\r\n0\r\nTrue\r\n";
  std::string zeros;
  for (int i = 0; i < 100; ++i) zeros += "0\r\n";
  EXPECT_EQ(FormatPanel(ParsePanel("")), defaults + zeros);
  const Panel panel = ParsePanel("7\r\n\r\nx");
  EXPECT_EQ(panel.Width, 7.0F);
  EXPECT_EQ(panel.Height, 0.0F);
  EXPECT_EQ(panel.Spacing, 0.0F);
  EXPECT_EQ(panel.XLow, 0.5F);
  EXPECT_TRUE(panel.Mirror);
  EXPECT_EQ(ParsePanel(kHead + "99999\r\n2.5\r\n3").Power[2], 3);
  EXPECT_EQ(ParsePanel(kHead + "99999\r\n2.5\r\n3").Power[0], 32767);
}

TEST(modPanel, MirrorIsTheExactWord) {
  const std::string numbers = kHead.substr(0, kHead.size() - 7);
  for (const char* word : {"true", "TRUE", "1", "-1", " True", "True ", ""}) {
    EXPECT_FALSE(ParsePanel(numbers + word + "\r\n").Mirror) << word;
  }
  EXPECT_TRUE(ParsePanel(numbers + "True").Mirror);
}

TEST(modPanel, ANameInAJobStaysInsideTheBaseDirectory) {
  test::FakeFileSystem fileSystem("/base");
  fileSystem.Put("/other.pan", "1");
  for (const char* name : {"NONE.PAN", "", "..\\other.pan", "/other.pan"}) {
    EXPECT_FALSE(ReadPanel(common::Files(fileSystem, "/base"), name)) << name;
  }
}

}  // namespace
}  // namespace morvane::gcode::panel
