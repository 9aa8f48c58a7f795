#include "platform/Processes.h"

#include <gtest/gtest.h>
#include <signal.h>

#include "platform/posix/PosixClock.h"
#include "platform/posix/PosixProcesses.h"
#include "support/FakeProcesses.h"
#include "support/TempFolder.h"

namespace morvane::platform {
namespace {

// Each way to have programs offers the same: one that ends with a code or, for -1, runs until it is
// terminated, and one that is not there.
struct FakePrograms {
  test::FakeProcesses processes;
  std::unique_ptr<Process> Ending(int code) { return Start({true, code < 0 ? -1 : 2, code, {}}); }
  std::unique_ptr<Process> Missing() { return Start({false, 0, 0, {}}); }
  std::unique_ptr<Process> Start(const test::FakeProcesses::Script& script) {
    processes.scripts.push_back(script);
    return processes.Start("/base/TOOL.EXE", {}, "/base");
  }
};

struct PosixPrograms {
  PosixProcesses processes;
  std::unique_ptr<Process> Ending(int code) {
    const std::string end = "exit " + std::to_string(code);
    return processes.Start("/bin/sh", {"-c", code < 0 ? "exec sleep 1000" : end}, "/");
  }
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

TYPED_TEST(ProcessesContract, EndsByItselfOrIsTerminated) {
  for (int code : {0, 7, 255}) {
    const auto process = this->programs_.Ending(code);
    ASSERT_NE(process, nullptr);
    EXPECT_EQ(this->WaitFor(*process), code);
    process->Terminate();
    EXPECT_EQ(process->ExitCode(), code);
  }
  const auto endless = this->programs_.Ending(-1);
  ASSERT_NE(endless, nullptr);
  EXPECT_EQ(endless->ExitCode(), std::nullopt);
  endless->Terminate();
  EXPECT_EQ(this->WaitFor(*endless), 128 + SIGTERM);
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
  folder.Write("plain.txt", "no program");
  EXPECT_EQ(programs_.processes.Start(folder / "plain.txt", {}, "/"), nullptr);
  EXPECT_EQ(programs_.processes.Start("/bin/sh", {}, folder / "none"), nullptr);
  EXPECT_EQ(programs_.processes.Start("/bin/sh", {std::string("a\0b", 3)}, "/"), nullptr);
}

}  // namespace
}  // namespace morvane::platform
