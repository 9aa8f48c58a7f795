#include "platform/Stores.h"

#include <gtest/gtest.h>

#include "platform/posix/PosixAutoStartStore.h"
#include "support/FakeFileSystem.h"

namespace morvane::platform {
namespace {

TEST(PosixAutoStartStore, WritesAnEntryThatTheSessionCanRun) {
  test::FakeFileSystem disk("/home/x");
  PosixAutoStartStore store(disk, "/home/x/.config");
  EXPECT_TRUE(store.Names().empty());
  EXPECT_TRUE(store.Write("MorvaneDS", "/opt/a b/100%/$x\\\"/MorvaneDS.EXE"));
  EXPECT_EQ(store.Names(), std::vector<std::string>{"MorvaneDS"});
  EXPECT_EQ(disk.Get("/home/x/.config/autostart/MorvaneDS.desktop"),
            "[Desktop Entry]\nType=Application\nName=MorvaneDS\n"
            "Exec=\"/opt/a b/100%%/\\\\$x\\\\\\\\\\\\\"/MorvaneDS.EXE\"\nTerminal=false\n");
  EXPECT_FALSE(store.Write("../evil", "/bin/true"));
  EXPECT_FALSE(store.Write("Two", "/bin/true\nExec=/bin/false"));
  for (int time = 0; time < 2; ++time) EXPECT_TRUE(store.Remove("MorvaneDS"));
  EXPECT_TRUE(store.Names().empty());
  disk.faults.bytesLeft = 5;
  EXPECT_FALSE(store.Write("MorvaneDS", "/bin/true"));
  EXPECT_TRUE(store.Names().empty());
}

}  // namespace
}  // namespace morvane::platform
