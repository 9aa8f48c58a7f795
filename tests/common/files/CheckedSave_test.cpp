#include "common/files/CheckedSave.h"

#include <gtest/gtest.h>
#include <signal.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/posix/PosixFileSystem.h"
#include "support/Failure.h"
#include "support/FakeFileSystem.h"
#include "support/TempFolder.h"

namespace morvane::common {
namespace {

using platform::Error;
using Names = std::vector<std::string>;

const std::string kTarget = "/base/A.TJB";
const std::string kBytes = "the new and longer bytes";

std::string Save(platform::FileSystem& system, const std::string& target, std::string_view bytes = kBytes) {
  return test::Failure([&] { CheckedSave(system, target, bytes); });
}

Names Listed(const platform::FileSystem& system, const std::string& directory) {
  Names names;
  system.List(directory, names);
  return names;
}

class CheckedSaveTest : public ::testing::Test {
 protected:
  CheckedSaveTest() { disk_.Put(kTarget, "old bytes"); }
  void ExpectOldFileAlone() {
    EXPECT_EQ(disk_.Get(kTarget), "old bytes");
    EXPECT_EQ(Listed(disk_, "/base"), Names{"A.TJB"});
  }
  test::FakeFileSystem disk_;
};

TEST_F(CheckedSaveTest, AFailureOfAnyStepKeepsTheOldFile) {
  using Faults = test::FakeFileSystem::Faults;
  for (Error Faults::*step : {&Faults::create, &Faults::sync, &Faults::close, &Faults::rename}) {
    disk_.faults.*step = Error::DeviceError;
    EXPECT_EQ(Save(disk_, kTarget), "Device I/O error");
    disk_.faults = {};
    ExpectOldFileAlone();
  }
  disk_.faults.syncDirectory = Error::DeviceError;
  EXPECT_EQ(Save(disk_, kTarget), "Device I/O error");
  EXPECT_EQ(disk_.Get(kTarget), kBytes);
}

TEST_F(CheckedSaveTest, RefusesTargetsThatMayNotBeReplaced) {
  disk_.SetWritable(kTarget, false);
  EXPECT_EQ(Save(disk_, kTarget), "Permission denied");
  EXPECT_EQ(Save(disk_, "/base"), "Path/File access error");
  EXPECT_EQ(Save(disk_, "/none/A.TJB"), "Path not found");
  ExpectOldFileAlone();
}

TEST_F(CheckedSaveTest, LeavesAnotherSaversFileAloneUntilLeftoversAreCleared) {
  disk_.Put("/base/.morvane-save-0", "of another");
  disk_.Put("/base/.morvane", "not ours");
  EXPECT_EQ(Save(disk_, kTarget), "");
  EXPECT_EQ(disk_.Get("/base/.morvane-save-0"), "of another");
  ClearSaveLeftovers(disk_, "/base");
  EXPECT_EQ(Listed(disk_, "/base"), (Names{".morvane", "A.TJB"}));
}

class CheckedSaveOnDisk : public ::testing::Test {
 protected:
  const test::TempFolder folder_;
  const std::string target_ = folder_ / "A.TJB";
  platform::PosixFileSystem system_;
};

TEST_F(CheckedSaveOnDisk, KeepsPermissionsAndFollowsALink) {
  folder_.Write("A.TJB", "old");
  ASSERT_EQ(chmod(target_.c_str(), 0640), 0);
  ASSERT_EQ(symlink("A.TJB", (folder_ / "link").c_str()), 0);
  EXPECT_EQ(Save(system_, folder_ / "link"), "");
  EXPECT_EQ(folder_.Read("A.TJB"), kBytes);
  struct stat status {};
  ASSERT_EQ(stat(target_.c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 07777, 0640u);
}

TEST_F(CheckedSaveOnDisk, ALimitAtAnyByteKeepsTheOldFile) {
  folder_.Write("A.TJB", "old bytes");
  rlimit before{};
  ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &before), 0);
  const auto handler = signal(SIGXFSZ, SIG_IGN);
  for (rlim_t room = 0; room < kBytes.size(); ++room) {
    const rlimit limit{room, before.rlim_max};
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &limit), 0);
    const std::string failure = Save(system_, target_);
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &before), 0);
    EXPECT_EQ(failure, "Disk full");
    EXPECT_EQ(folder_.Read("A.TJB"), "old bytes");
  }
  signal(SIGXFSZ, handler);
  EXPECT_EQ(Listed(system_, folder_.Path()), Names{"A.TJB"});
}

}  // namespace
}  // namespace morvane::common
