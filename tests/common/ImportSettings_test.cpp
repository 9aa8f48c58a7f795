#include "common/ImportSettings.h"

#include <gtest/gtest.h>

#include "common/RunTimeError.h"
#include "platform/posix/PosixPerUserStore.h"
#include "support/FakeFileSystem.h"

namespace morvane::common {
namespace {

TEST(ImportSettings, MovesEverythingOnceOrNothing) {
  constexpr const char* kStore = "/home/x/.config/Morvane/user.ini";
  constexpr const char* kIni = "/base/Morvane.ini";
  const std::string old =
      "[Settings]\nComPort=5\nImported=0\nDEVELOPER=1\n]odd=1\n[Machines]\nM 1=1.2.3.4\n[Other]\nX=1\n";
  test::FakeFileSystem disk("/base");
  Files files(disk, "/base");
  Settings settings(files);
  platform::PosixPerUserStore store(disk, "/home/x/.config");
  disk.Put(kStore, old);
  disk.faults.bytesLeft = 20;
  EXPECT_THROW(ImportSettings(store, settings), RunTimeError);
  EXPECT_EQ(disk.Get(kStore), old);
  EXPECT_FALSE(disk.Has(kIni));

  disk.faults = {};
  disk.Put(kIni, "[Settings]\r\nComPort=1\r\nIP=9\r\n");
  const std::string left[] = {"[Settings]\nDEVELOPER=1\n[Machines]\n[Other]\nX=1\n",
                              "[Settings]\nComPort=3\n"};
  for (const int start : {0, 1}) {
    ImportSettings(store, settings);
    EXPECT_EQ(disk.Get(kIni),
              "[Settings]\r\nComPort=5\r\nIP=9\r\nImported=1\r\n]odd=1\r\n[Machines]\r\nM 1=1.2.3.4\r\n");
    EXPECT_EQ(disk.Get(kStore), left[start]);
    disk.Put(kStore, left[1]);
  }
  disk.Put(kStore, "");
  disk.Put(kIni, "");
  ImportSettings(store, settings);
  EXPECT_EQ(disk.Get(kIni), "[Settings]\r\nImported=1\r\n") << "an empty store is marked too";
}

}  // namespace
}  // namespace morvane::common
