#include "common/RunAndWait.h"

#include <gtest/gtest.h>

#include "support/SideProgramStation.h"

namespace morvane::common {
namespace {

TEST(RunAndWait, LooksInTheBaseDirectoryThenBesideTheProgram) {
  test::SideProgramStation station("other.exe");
  station.disk.Put("/program/SQRGEN.EXE", "");
  EXPECT_EQ(station.runner.RunAndWait("sqrgen.exe", {"20x20", "\xE9"}), 0);
  station.disk.Put("/base/Sqrgen.exe", "");
  EXPECT_EQ(station.runner.RunAndWait("SQRGEN.EXE", {}), 0);
  const auto& runs = station.processes.runs;
  EXPECT_EQ(runs[0].program, "/program/SQRGEN.EXE");
  EXPECT_EQ(runs[0].arguments, (std::vector<std::string>{"20x20", "\xC3\xA9"}));
  EXPECT_EQ(runs[0].workingDirectory, "/base");
  EXPECT_EQ(runs[1].program, "/base/Sqrgen.exe");
}

TEST(RunAndWait, WaitsForTheExitCodeOrTheEndOfTheProgram) {
  test::SideProgramStation station("TOOL.EXE");
  station.processes.scripts = {{true, -1, 0, {}}, {false, 0, 0, {}}, {true, 40, 3, {}}, {true, -1, 0, {}}};
  EXPECT_EQ(station.runner.RunAndWait("TOOL.EXE", {}, false), 0);
  EXPECT_EQ(station.runner.RunAndWait("TOOL.EXE", {}), kCannotStart);
  EXPECT_EQ(station.clock.seconds, 0);
  int longest = 0;
  station.clock.onWait = [&](int milliseconds) { longest = std::max(longest, milliseconds); };
  EXPECT_EQ(station.runner.RunAndWait("TOOL.EXE", {}), 3);
  EXPECT_EQ(longest, 1000);
  station.clock.onWait = [&](int) { station.abort = true; };
  EXPECT_EQ(station.runner.RunAndWait("TOOL.EXE", {}), kStillActive);
  EXPECT_FALSE(station.processes.runs[0].terminated);
  EXPECT_TRUE(station.processes.runs[3].terminated);
}

}  // namespace
}  // namespace morvane::common
