#include "common/RunAndWait.h"

#include <gtest/gtest.h>

#include "support/FakeClock.h"
#include "support/FakeFileSystem.h"
#include "support/FakeProcesses.h"

namespace morvane::common {
namespace {

class RunAndWaitTest : public ::testing::Test {
 protected:
  test::FakeFileSystem disk_{"/base"};
  Files files_{disk_, "/base"};
  test::FakeClock clock_;
  test::FakeProcesses processes_;
  bool abort_ = false;
  ProcessRunner runner_{processes_, clock_, files_, "/opt/bin", abort_};
};

TEST_F(RunAndWaitTest, LooksInTheBaseDirectoryThenBesideTheProgram) {
  disk_.Put("/opt/bin/SQRGEN.EXE", "");
  EXPECT_EQ(runner_.RunAndWait("sqrgen.exe", {"20x20", "\xE9"}), 0);
  disk_.Put("/base/Sqrgen.exe", "");
  EXPECT_EQ(runner_.RunAndWait("SQRGEN.EXE", {}), 0);
  EXPECT_EQ(processes_.runs[0].program, "/opt/bin/SQRGEN.EXE");
  EXPECT_EQ(processes_.runs[0].arguments, (std::vector<std::string>{"20x20", "\xC3\xA9"}));
  EXPECT_EQ(processes_.runs[0].workingDirectory, "/base");
  EXPECT_EQ(processes_.runs[1].program, "/base/Sqrgen.exe");
}

TEST_F(RunAndWaitTest, WaitsForTheExitCode) {
  processes_.scripts = {{true, 40, 3, {}}, {true, -1, 0, {}}, {false, 0, 0, {}}};
  int longest = 0;
  clock_.onWait = [&](int milliseconds) { longest = std::max(longest, milliseconds); };
  EXPECT_EQ(runner_.RunAndWait("TOOL.EXE", {}), 3);
  EXPECT_EQ(longest, 1000);
  clock_.totalSlept = 0;
  EXPECT_EQ(runner_.RunAndWait("TOOL.EXE", {}, false), 0);
  EXPECT_EQ(runner_.RunAndWait("TOOL.EXE", {}), kCannotStart);
  EXPECT_EQ(clock_.totalSlept, 0);
  EXPECT_FALSE(processes_.runs[1].terminated);
}

TEST_F(RunAndWaitTest, ClosingTheProgramEndsTheWait) {
  processes_.scripts = {{true, -1, 0, {}}};
  clock_.onWait = [&](int) { abort_ = clock_.seconds > 5; };
  EXPECT_EQ(runner_.RunAndWait("TOOL.EXE", {}), kStillActive);
  EXPECT_TRUE(processes_.runs[0].terminated);
}

}  // namespace
}  // namespace morvane::common
