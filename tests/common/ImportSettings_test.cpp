#include "common/ImportSettings.h"

#include <gtest/gtest.h>

#include "common/RunTimeError.h"
#include "platform/posix/PosixPerUserStore.h"
#include "support/FakeFileSystem.h"

namespace morvane::common {
namespace {

constexpr const char* kStore = "/home/x/.config/Morvane/user.ini";
constexpr const char* kIni = "/base/Morvane.ini";
constexpr const char* kOld =
    "[Settings]\nComPort=5\nImported=0\nDEVELOPER=1\n]odd=1\n[Machines]\nM 1=1.2.3.4\n[Other]\nX=1\n";

class ImportSettingsTest : public ::testing::Test {
 protected:
  test::FakeFileSystem disk_{"/base"};
  Files files_{disk_, "/base"};
  Settings settings_{files_};
  platform::PosixPerUserStore store_{disk_, "/home/x/.config"};
};

TEST_F(ImportSettingsTest, MovesEverythingOnce) {
  disk_.Put(kStore, kOld);
  disk_.Put(kIni, "[Settings]\r\nComPort=1\r\nIP=9\r\n");
  ImportSettings(store_, settings_);
  const std::string imported =
      "[Settings]\r\nComPort=5\r\nIP=9\r\nImported=1\r\n]odd=1\r\n[Machines]\r\nM 1=1.2.3.4\r\n";
  EXPECT_EQ(disk_.Get(kIni), imported);
  EXPECT_EQ(disk_.Get(kStore), "[Settings]\nDEVELOPER=1\n[Machines]\n[Other]\nX=1\n");
  disk_.Put(kStore, "[Settings]\nComPort=3\n");
  ImportSettings(store_, settings_);
  EXPECT_EQ(disk_.Get(kIni), imported);
}

TEST_F(ImportSettingsTest, MarksAlsoAnEmptyStore) {
  ImportSettings(store_, settings_);
  EXPECT_EQ(disk_.Get(kIni), "[Settings]\r\nImported=1\r\n");
}

TEST_F(ImportSettingsTest, LosesNothingWhenTheFileCannotBeWritten) {
  disk_.Put(kStore, kOld);
  disk_.faults.bytesLeft = 20;
  EXPECT_THROW(ImportSettings(store_, settings_), RunTimeError);
  EXPECT_EQ(disk_.Get(kStore), kOld);
  EXPECT_FALSE(disk_.Has(kIni));
}

}  // namespace
}  // namespace morvane::common
