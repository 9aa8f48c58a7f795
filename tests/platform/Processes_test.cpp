#include "platform/Processes.h"

#include <gtest/gtest.h>

#include <signal.h>

#include "platform/posix/PosixClock.h"
#include "platform/posix/PosixProcesses.h"
#include "support/FakeProcesses.h"
#include "support/TempFolder.h"

namespace morvane::platform {
namespace {

// Each way to have programs offers the same three: one that ends with a code, one that runs until it is
// terminated, and one that is not there.
struct FakePrograms {
  test::FakeProcesses processes;
  std::unique_ptr<Process> Ending(int code) {
    processes.scripts.push_back({true, 2, code, {}});
    return processes.Start("/base/TOOL.EXE", {}, "/base");
  }
  std::unique_ptr<Process> Endless() {
    processes.scripts.push_back({true, -1, 0, {}});
    return processes.Start("/base/TOOL.EXE", {}, "/base");
  }
  std::unique_ptr<Process> Missing() {
    processes.scripts.push_back({false, 0, 0, {}});
    return processes.Start("/base/TOOL.EXE", {}, "/base");
  }
};

struct PosixPrograms {
  PosixProcesses processes;
  std::unique_ptr<Process> Ending(int code) {
    return processes.Start("/bin/sh", {"-c", "exit " + std::to_string(code)}, "/");
  }
  std::unique_ptr<Process> Endless() { return processes.Start("/bin/sleep", {"1000"}, "/"); }
  std::unique_ptr<Process> Missing() { return processes.Start("/nowhere/TOOL.EXE", {}, "/"); }
};

template <typename Programs>
class ProcessesContract : public ::testing::Test {
 protected:
  static int WaitFor(Process& process) {
    PosixClock clock;
    for (int left = 1000; left > 0; --left) {
      if (const auto code = process.ExitCode()) return *code;
      clock.Sleep(5);
    }
    return -1;
  }
  Programs programs_;
};

using AllPrograms = ::testing::Types<FakePrograms, PosixPrograms>;
TYPED_TEST_SUITE(ProcessesContract, AllPrograms);

TYPED_TEST(ProcessesContract, ReportsTheExitCodeAgainAndAgain) {
  for (int code : {0, 7, 255}) {
    const auto process = this->programs_.Ending(code);
    ASSERT_NE(process, nullptr);
    EXPECT_EQ(this->WaitFor(*process), code);
    EXPECT_EQ(process->ExitCode(), code);
    process->Terminate();
    EXPECT_EQ(process->ExitCode(), code);
  }
}

TYPED_TEST(ProcessesContract, RunsUntilItIsTerminated) {
  const auto process = this->programs_.Endless();
  ASSERT_NE(process, nullptr);
  EXPECT_EQ(process->ExitCode(), std::nullopt);
  process->Terminate();
  EXPECT_EQ(this->WaitFor(*process), 128 + SIGTERM);
}

TYPED_TEST(ProcessesContract, TellsThatAProgramCannotStart) {
  EXPECT_EQ(this->programs_.Missing(), nullptr);
}

class PosixProcessesTest : public ProcessesContract<PosixPrograms> {};

TEST_F(PosixProcessesTest, ArgumentsArriveAsTheyAre) {
  const test::TempFolder folder;
  const auto process = programs_.processes.Start(
      "/bin/sh",
      {"-c", "head -c 1 > in; printf '%s|' \"$@\" > out", "x", "a b", "\"q\"", "$(id);`id`", "\xC3\xA9", ""},
      folder.Path());
  ASSERT_NE(process, nullptr);
  EXPECT_EQ(WaitFor(*process), 0);
  EXPECT_EQ(folder.Read("out"), "a b|\"q\"|$(id);`id`|\xC3\xA9||");
  EXPECT_EQ(folder.Read("in"), "");  // no input, and no wait for any
}

TEST_F(PosixProcessesTest, CannotStartWithoutARightProgramFolderOrText) {
  const test::TempFolder folder;
  folder.Write("plain.txt", "no program");
  EXPECT_EQ(programs_.processes.Start(folder / "plain.txt", {}, "/"), nullptr);
  EXPECT_EQ(programs_.processes.Start("/bin/sh", {}, folder / "none"), nullptr);
  EXPECT_EQ(programs_.processes.Start("/bin/sh", {std::string("a\0b", 3)}, "/"), nullptr);
}

}  // namespace
}  // namespace morvane::platform
