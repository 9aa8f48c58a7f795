#include "platform/Stores.h"

#include <gtest/gtest.h>

#include "platform/posix/PosixAutoStartStore.h"
#include "platform/posix/PosixPerUserStore.h"
#include "support/FakeFileSystem.h"

namespace morvane::platform {
namespace {

TEST(PosixPerUserStore, ReadsAndRemoves) {
  test::FakeFileSystem disk("/home/x");
  PosixPerUserStore store(disk, "/home/x/.config");
  EXPECT_EQ(store.Get("Settings", "Developer", "0"), "0");
  disk.Put("/home/x/.config/Morvane/user.ini", "[Settings]\nDeveloper=1\nA=x;y=z\n[Machines]\nM 1=1.2.3.4\n");
  using Table = std::vector<std::pair<std::string, std::string>>;
  EXPECT_EQ(store.All("settings"), (Table{{"Developer", "1"}, {"A", "x;y=z"}}));
  EXPECT_EQ(store.Get("Settings", "Developer", "0"), "1");
  store.Remove("Settings", "A");
  store.Remove("Settings", "none");
  EXPECT_EQ(disk.Get("/home/x/.config/Morvane/user.ini"),
            "[Settings]\nDeveloper=1\n[Machines]\nM 1=1.2.3.4\n");
}

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
