#include "platform/FileSystem.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>

#include "platform/posix/PosixFileSystem.h"
#include "support/FakeFileSystem.h"
#include "support/TempFolder.h"

namespace morvane::platform {
namespace {

struct FakeDisk {
  test::FakeFileSystem system{"/base"};
  std::string root = "/base";
};

struct PosixDisk {
  test::TempFolder folder;
  PosixFileSystem system;
  std::string root = folder.Path();
};

// What every file system owes the core.
template <typename Disk>
class FileSystemContract : public ::testing::Test {
 protected:
  std::string At(const std::string& name) const { return disk_.root + "/" + name; }
  Error Write(const std::string& name, std::string_view bytes) {
    Error error = Error::None;
    const auto file = disk_.system.Create(At(name), error);
    if (!file) return error;
    for (const Error step : {file->Write(bytes), file->Sync(), file->Close(), file->Close()}) {
      if (step != Error::None) return step;
    }
    return Error::None;
  }
  std::string Read(const std::string& name) const {
    std::string bytes = "left over";
    EXPECT_EQ(disk_.system.Read(At(name), bytes), Error::None) << name;
    return bytes;
  }
  EntryKind Kind(const std::string& name) const { return disk_.system.Status(At(name)).kind; }

  Disk disk_;
};

using Disks = ::testing::Types<FakeDisk, PosixDisk>;
TYPED_TEST_SUITE(FileSystemContract, Disks);

TYPED_TEST(FileSystemContract, KeepsEveryByteAndItsTime) {
  std::string all(100'000, '\0');
  for (std::size_t i = 0; i < all.size(); ++i) all[i] = static_cast<char>(i * 31);
  EXPECT_EQ(this->Write("a.bin", all), Error::None);
  EXPECT_EQ(this->Read("a.bin"), all);
  const FileStatus first = this->disk_.system.Status(this->At("a.bin"));
  EXPECT_EQ(first.size, all.size());
  EXPECT_GT(first.modifiedNanoseconds, 0);
  EXPECT_EQ(this->Write("a.bin", "short"), Error::None);
  EXPECT_EQ(this->Read("a.bin"), "short");
  EXPECT_GE(this->disk_.system.Status(this->At("a.bin")).modifiedNanoseconds, first.modifiedNanoseconds);
}

TYPED_TEST(FileSystemContract, TellsFailuresApart) {
  auto& system = this->disk_.system;
  std::string bytes;
  std::vector<std::string> names;
  ASSERT_EQ(system.MakeDirectory(this->At("folder")), Error::None);
  ASSERT_EQ(this->Write("file", "x"), Error::None);
  EXPECT_EQ(system.Read(this->At("none"), bytes), Error::FileNotFound);
  EXPECT_EQ(system.Read(this->At("none/none"), bytes), Error::PathNotFound);
  EXPECT_EQ(system.Read(this->At("folder"), bytes), Error::AccessError);
  EXPECT_EQ(system.List(this->At("none"), names), Error::PathNotFound);
  EXPECT_EQ(system.MakeDirectory(this->At("folder")), Error::AlreadyExists);
  EXPECT_EQ(system.MakeDirectory(this->At("none/x")), Error::PathNotFound);
  EXPECT_EQ(system.Remove(this->At("none")), Error::FileNotFound);
  EXPECT_EQ(system.Remove(this->At("folder")), Error::AccessError);
  EXPECT_EQ(system.Rename(this->At("none"), this->At("file")), Error::FileNotFound);
  EXPECT_EQ(system.Rename(this->At("file"), this->At("none/file")), Error::PathNotFound);
  EXPECT_EQ(system.SyncDirectory(this->At("none")), Error::PathNotFound);
  EXPECT_EQ(this->Write("none/x", "x"), Error::PathNotFound);
  EXPECT_EQ(this->Write("folder", "x"), Error::AccessError);
  Error error = Error::None;
  EXPECT_EQ(system.CreateNew(this->At("file"), "", error), nullptr);
  EXPECT_EQ(error, Error::AlreadyExists);
  EXPECT_EQ(this->Read("file"), "x");
}

TYPED_TEST(FileSystemContract, ListsRenamesAndRemoves) {
  auto& system = this->disk_.system;
  ASSERT_EQ(system.MakeDirectory(this->At("folder")), Error::None);
  ASSERT_EQ(this->Write("Name", "upper"), Error::None);
  ASSERT_EQ(this->Write("name", "lower"), Error::None);
  ASSERT_EQ(this->Write("folder/inner", "x"), Error::None);
  std::vector<std::string> names{"left over"};
  EXPECT_EQ(system.List(this->disk_.root, names), Error::None);
  std::sort(names.begin(), names.end());
  EXPECT_EQ(names, (std::vector<std::string>{"Name", "folder", "name"}));
  EXPECT_EQ(this->Kind("folder"), EntryKind::Directory);
  EXPECT_EQ(this->Kind("NAME"), EntryKind::Missing);
  EXPECT_EQ(system.Rename(this->At("Name"), this->At("folder/inner")), Error::None);
  EXPECT_EQ(this->Read("folder/inner"), "upper");
  EXPECT_EQ(this->Kind("Name"), EntryKind::Missing);
  EXPECT_EQ(system.SyncDirectory(this->At("folder")), Error::None);
  EXPECT_EQ(system.Remove(this->At("folder/inner")), Error::None);
  EXPECT_EQ(this->Kind("folder/inner"), EntryKind::Missing);
  EXPECT_EQ(system.RealPath(this->At("folder/../new/./x")), system.RealPath(this->disk_.root) + "/new/x");
}

class PosixFileSystemTest : public FileSystemContract<PosixDisk> {};

TEST_F(PosixFileSystemTest, RefusesWhatIsNoPlainName) {
  std::string bytes;
  ASSERT_EQ(Write("a", "kept"), Error::None);
  ASSERT_EQ(mkfifo(At("pipe").c_str(), 0600), 0);
  for (const std::string& name : {std::string("a\0b", 3), std::string("pipe"), std::string(5000, 'x')}) {
    EXPECT_EQ(disk_.system.Read(At(name), bytes), Error::AccessError);
    EXPECT_NE(Write(name, "x"), Error::None);
  }
  EXPECT_EQ(disk_.system.Remove(At({"a\0b", 3})), Error::AccessError);
  EXPECT_EQ(Read("a"), "kept");
}

TEST_F(PosixFileSystemTest, FollowsLinksAlsoWhereNothingIsYet) {
  using Case = std::array<const char*, 2>;
  for (const auto& [target, name] :
       {Case{"/nowhere/at/all", "away"}, Case{"ring", "ring"}, Case{".", "self"}}) {
    ASSERT_EQ(symlink(target, At(name).c_str()), 0);
  }
  EXPECT_EQ(disk_.system.RealPath(At("away/x")), "/nowhere/at/all/x");
  EXPECT_EQ(disk_.system.RealPath(At("self/new")), disk_.system.RealPath(disk_.root) + "/new");
  EXPECT_EQ(disk_.system.RealPath(At("ring")), At("ring"));
}

TEST_F(PosixFileSystemTest, PermissionBitsCountForAnAdministratorToo) {
  ASSERT_EQ(Write("a", "x"), Error::None);
  ASSERT_EQ(chmod(At("a").c_str(), 0440), 0);
  Error error = Error::None;
  ASSERT_NE(disk_.system.CreateNew(At("b"), At("a"), error), nullptr);
  EXPECT_FALSE(disk_.system.Status(At("a")).writable || disk_.system.Status(At("b")).writable);
}

}  // namespace
}  // namespace morvane::platform
