#include "gcode/panel/modPanel.h"

#include <gtest/gtest.h>

#include "common/text/Numbers.h"
#include "support/FakeFileSystem.h"

namespace morvane::gcode::panel {
namespace {

// 12 lines, then the power levels from 0 to 99.
const std::string kHead = "12\r\n24.5\r\n0.05\r\n1\r\n2\r\n3\r\n4\r\n5\r\n6\r\n0.25\r\n-0.5\r\n";

std::string Levels(std::int32_t step) {
  std::string lines;
  for (std::int32_t i = 0; i < 100; ++i) lines += common::PlainNumber(i * step) + "\r\n";
  return lines;
}

TEST(modPanel, ReadsEveryFieldAndWritesTheSameBytes) {
  const std::string bytes = kHead + "False\r\n" + Levels(1);
  const Panel p = ParsePanel(bytes);
  EXPECT_EQ((std::vector<float>{p.Width, p.Height, p.Spacing, p.XLow, p.XHigh, p.XAccel, p.YLow, p.YHigh,
                                p.YAccel, p.Margin, p.Backlash}),
            (std::vector<float>{12, 24.5F, 0.05F, 1, 2, 3, 4, 5, 6, 0.25F, -0.5F}));
  EXPECT_TRUE(!p.Mirror && p.Power.front() == 0 && p.Power.back() == 99);
  EXPECT_EQ(FormatPanel(ParsePanel(bytes + "surplus\r\n")), bytes);
}

TEST(modPanel, AShortOrBadFileLeavesDefaults) {
  const std::string behind = "0.5\r\n5\r\n10\r\n0.5\r\n5\r\n10\r\n0\r\n0\r\nTrue\r\n" + Levels(0);
  EXPECT_EQ(FormatPanel(ParsePanel("")), "48\r\n96\r\n0.1\r\n" + behind);
  EXPECT_EQ(FormatPanel(ParsePanel("7\r\n\r\nx")), "7\r\n0\r\n0\r\n" + behind);
  const Panel panel = ParsePanel(kHead + "True\r\n99999\r\n2.5\r\n3");
  EXPECT_EQ(panel.Power[0], 32767);
  EXPECT_EQ(panel.Power[2], 3);
  EXPECT_TRUE(panel.Mirror);
  for (const char* word : {"true", "1", "-1", " True", "True ", ""}) {
    EXPECT_FALSE(ParsePanel(kHead + word + "\r\n").Mirror) << word;
  }
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
