#include "common/CheckedSave.h"

#include <gtest/gtest.h>
#include <signal.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include "common/RunTimeError.h"
#include "platform/posix/PosixClock.h"
#include "platform/posix/PosixFileSystem.h"
#include "support/FakeFileSystem.h"
#include "support/TempFolder.h"

namespace morvane::common {
namespace {

using platform::Error;

std::string FailureOfSave(platform::FileSystem& system, const std::string& target, std::string_view bytes) {
  try {
    CheckedSave(system, target, bytes);
    return "";
  } catch (const RunTimeError& error) {
    return error.description();
  }
}

std::vector<std::string> Listed(const platform::FileSystem& system, const std::string& directory) {
  std::vector<std::string> names;
  system.List(directory, names);
  return names;
}

class CheckedSaveTest : public ::testing::Test {
 protected:
  void ExpectOldFileAlone() {
    EXPECT_EQ(disk_.Get("/base/A.TJB"), "old bytes");
    EXPECT_EQ(Listed(disk_, "/base"), std::vector<std::string>{"A.TJB"});
  }
  test::FakeFileSystem disk_;
};

TEST_F(CheckedSaveTest, ADiskThatFillsAtAnyByteKeepsTheOldFile) {
  disk_.Put("/base/A.TJB", "old bytes");
  const std::string bytes = "the new and longer bytes";
  for (std::size_t room = 0; room < bytes.size(); ++room) {
    disk_.faults.bytesLeft = room;
    EXPECT_EQ(FailureOfSave(disk_, "/base/A.TJB", bytes), "Disk full");
    ExpectOldFileAlone();
  }
  disk_.faults.bytesLeft = bytes.size();
  EXPECT_EQ(FailureOfSave(disk_, "/base/A.TJB", bytes), "");
  EXPECT_EQ(disk_.Get("/base/A.TJB"), bytes);
}

TEST_F(CheckedSaveTest, AFailureOfAnyStepKeepsTheOldFile) {
  using Faults = test::FakeFileSystem::Faults;
  for (Error Faults::*step : {&Faults::create, &Faults::sync, &Faults::close, &Faults::rename}) {
    disk_.Put("/base/A.TJB", "old bytes");
    disk_.faults.*step = Error::DeviceError;
    EXPECT_EQ(FailureOfSave(disk_, "/base/A.TJB", "new"), "Device I/O error");
    disk_.faults = {};
    ExpectOldFileAlone();
  }
  disk_.faults.syncDirectory = Error::DeviceError;
  EXPECT_EQ(FailureOfSave(disk_, "/base/A.TJB", "new"), "Device I/O error");
  EXPECT_EQ(disk_.Get("/base/A.TJB"), "new");
}

TEST_F(CheckedSaveTest, RefusesTargetsThatMayNotBeReplaced) {
  disk_.Put("/base/A.TJB", "old bytes");
  disk_.SetWritable("/base/A.TJB", false);
  EXPECT_EQ(FailureOfSave(disk_, "/base/A.TJB", "new"), "Permission denied");
  EXPECT_EQ(FailureOfSave(disk_, "/base", "new"), "Path/File access error");
  EXPECT_EQ(FailureOfSave(disk_, "/none/A.TJB", "new"), "Path not found");
  ExpectOldFileAlone();
}

TEST_F(CheckedSaveTest, LeavesAnotherSaversFileAloneUntilLeftoversAreCleared) {
  disk_.Put("/base/.morvane-save-0", "of another");
  disk_.Put("/base/.morvane", "not ours");
  EXPECT_EQ(FailureOfSave(disk_, "/base/A.TJB", "new"), "");
  EXPECT_EQ(disk_.Get("/base/.morvane-save-0"), "of another");
  ClearSaveLeftovers(disk_, "/base");
  EXPECT_EQ(Listed(disk_, "/base"), (std::vector<std::string>{".morvane", "A.TJB"}));
}

TEST(CheckedSaveOnDisk, KeepsPermissionsAndFollowsALink) {
  const test::TempFolder folder;
  platform::PosixFileSystem system;
  folder.Write("real", "old");
  ASSERT_EQ(chmod((folder / "real").c_str(), 0640), 0);
  ASSERT_EQ(symlink("real", (folder / "link").c_str()), 0);
  EXPECT_EQ(FailureOfSave(system, folder / "link", "new"), "");
  EXPECT_EQ(folder.Read("real"), "new");
  struct stat status {};
  ASSERT_EQ(lstat((folder / "link").c_str(), &status), 0);
  EXPECT_TRUE(S_ISLNK(status.st_mode));
  ASSERT_EQ(stat((folder / "real").c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 07777, 0640u);
}

TEST(CheckedSaveOnDisk, ALimitAtAnyByteKeepsTheOldFile) {
  const test::TempFolder folder;
  platform::PosixFileSystem system;
  folder.Write("A.TJB", "old bytes");
  rlimit before{};
  ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &before), 0);
  const auto handler = signal(SIGXFSZ, SIG_IGN);
  for (rlim_t room = 0; room < 24; ++room) {
    const rlimit limit{room, before.rlim_max};
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &limit), 0);
    const std::string failure = FailureOfSave(system, folder / "A.TJB", "the new and longer bytes");
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &before), 0);
    EXPECT_EQ(failure, "Disk full");
    EXPECT_EQ(folder.Read("A.TJB"), "old bytes");
  }
  signal(SIGXFSZ, handler);
  EXPECT_EQ(Listed(system, folder.Path()), std::vector<std::string>{"A.TJB"});
}

TEST(CheckedSaveOnDisk, AKillInMidSaveLeavesAWholeFile) {
  const test::TempFolder folder;
  platform::PosixFileSystem system;
  platform::PosixClock clock;
  const std::string texts[] = {std::string(300'000, 'a'), std::string(200'000, 'b')};
  CheckedSave(system, folder / "A.TJB", texts[0]);
  for (int round = 0; round < 25; ++round) {
    const pid_t child = fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
      for (int i = 0;; ++i) CheckedSave(system, folder / "A.TJB", texts[i % 2]);
    }
    clock.Sleep(1 + round);
    kill(child, SIGKILL);
    ASSERT_EQ(waitpid(child, nullptr, 0), child);
    const std::string bytes = folder.Read("A.TJB");
    EXPECT_TRUE(bytes == texts[0] || bytes == texts[1])
        << "in round " << round << ", " << bytes.size() << " bytes";
  }
  ClearSaveLeftovers(system, folder.Path());
  EXPECT_EQ(Listed(system, folder.Path()), std::vector<std::string>{"A.TJB"});
}

}  // namespace
}  // namespace morvane::common
