#include "platform/Processes.h"

#include <gtest/gtest.h>
#include <signal.h>

#include "platform/posix/PosixClock.h"
#include "platform/posix/PosixProcesses.h"
#include "support/TempFolder.h"

namespace morvane::platform {
namespace {

int WaitFor(Process& process) {
  PosixClock clock;
  for (int left = 1000; left > 0; --left) {
    if (const auto code = process.ExitCode()) return *code;
    clock.Sleep(5);
  }
  return -1;
}

TEST(PosixProcesses, EndByThemselvesOrAreTerminated) {
  PosixProcesses processes;
  for (const int code : {0, 7, 255}) {
    const auto process = processes.Start("/bin/sh", {"-c", "exit " + std::to_string(code)}, "/");
    ASSERT_NE(process, nullptr);
    EXPECT_EQ(WaitFor(*process), code);
    process->Terminate();
    EXPECT_EQ(process->ExitCode(), code);
  }
  const auto endless = processes.Start("/bin/sh", {"-c", "exec sleep 1000"}, "/");
  ASSERT_NE(endless, nullptr);
  EXPECT_EQ(endless->ExitCode(), std::nullopt);
  endless->Terminate();
  EXPECT_EQ(WaitFor(*endless), 128 + SIGTERM);
}

TEST(PosixProcesses, ArgumentsArriveAsTheyAre) {
  PosixProcesses processes;
  const test::TempFolder folder;
  const auto process = processes.Start(
      "/bin/sh",
      {"-c", "head -c 1 > in; printf '%s|' \"$@\" > out", "x", "a b", "\"q\"", "$(id);`id`", "\xC3\xA9", ""},
      folder.Path());
  ASSERT_NE(process, nullptr);
  EXPECT_EQ(WaitFor(*process), 0);
  EXPECT_EQ(folder.Read("out"), "a b|\"q\"|$(id);`id`|\xC3\xA9||");
  EXPECT_EQ(folder.Read("in"), "");  // no input, and no wait for any
  folder.Write("plain.txt", "no program");
  for (const char* name : {"plain.txt", "none"}) EXPECT_EQ(processes.Start(folder / name, {}, "/"), nullptr);
  EXPECT_EQ(processes.Start("/bin/sh", {}, folder / "none"), nullptr);
  EXPECT_EQ(processes.Start("/bin/sh", {std::string("a\0b", 3)}, "/"), nullptr);
}

}  // namespace
}  // namespace morvane::platform
