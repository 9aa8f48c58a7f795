#include "platform/FileSystem.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>

#include "platform/posix/PosixFileSystem.h"
#include "support/TempFolder.h"

namespace morvane::platform {
namespace {

class PosixFileSystemTest : public ::testing::Test {
 protected:
  std::string At(const std::string& name) const { return folder_ / name; }
  Error Write(const std::string& name, std::string_view bytes) {
    Error error = Error::None;
    const auto file = system_.Create(At(name), error);
    if (!file) return error;
    for (const Error step : {file->Write(bytes), file->Sync(), file->Close(), file->Close()}) {
      if (step != Error::None) return step;
    }
    return Error::None;
  }
  std::string Read(const std::string& name) const {
    std::string bytes = "left over";
    EXPECT_EQ(system_.Read(At(name), bytes), Error::None) << name;
    return bytes;
  }
  EntryKind Kind(const std::string& name) const { return system_.Status(At(name)).kind; }

  test::TempFolder folder_;
  PosixFileSystem system_;
};

TEST_F(PosixFileSystemTest, KeepsEveryByteAndItsTime) {
  std::string all(100'000, '\0');
  for (std::size_t i = 0; i < all.size(); ++i) all[i] = static_cast<char>(i * 31);
  EXPECT_EQ(Write("a.bin", all), Error::None);
  EXPECT_EQ(Read("a.bin"), all);
  const FileStatus first = system_.Status(At("a.bin"));
  EXPECT_EQ(first.size, all.size());
  EXPECT_EQ(Write("a.bin", "short"), Error::None);
  EXPECT_EQ(Read("a.bin"), "short");
  EXPECT_GE(system_.Status(At("a.bin")).modifiedNanoseconds, first.modifiedNanoseconds);
}

TEST_F(PosixFileSystemTest, TellsFailuresApart) {
  std::string bytes;
  std::vector<std::string> names;
  ASSERT_EQ(system_.MakeDirectory(At("folder")), Error::None);
  ASSERT_EQ(Write("file", "x"), Error::None);
  EXPECT_EQ(system_.Read(At("none"), bytes), Error::FileNotFound);
  EXPECT_EQ(system_.Read(At("none/none"), bytes), Error::PathNotFound);
  EXPECT_EQ(system_.Read(At("folder"), bytes), Error::AccessError);
  EXPECT_EQ(system_.List(At("none"), names), Error::PathNotFound);
  EXPECT_EQ(system_.MakeDirectory(At("folder")), Error::AlreadyExists);
  EXPECT_EQ(system_.MakeDirectory(At("none/x")), Error::PathNotFound);
  EXPECT_EQ(system_.Remove(At("none")), Error::FileNotFound);
  EXPECT_EQ(system_.Remove(At("folder")), Error::AccessError);
  EXPECT_EQ(system_.Rename(At("none"), At("file")), Error::FileNotFound);
  EXPECT_EQ(system_.Rename(At("file"), At("none/file")), Error::PathNotFound);
  EXPECT_EQ(system_.SyncDirectory(At("none")), Error::PathNotFound);
  EXPECT_EQ(Write("none/x", "x"), Error::PathNotFound);
  EXPECT_EQ(Write("folder", "x"), Error::AccessError);
  Error error = Error::None;
  EXPECT_EQ(system_.CreateNew(At("file"), "", error), nullptr);
  EXPECT_EQ(error, Error::AlreadyExists);
  EXPECT_EQ(Read("file"), "x");
}

TEST_F(PosixFileSystemTest, ListsRenamesAndRemoves) {
  ASSERT_EQ(system_.MakeDirectory(At("folder")), Error::None);
  ASSERT_EQ(Write("Name", "upper"), Error::None);
  ASSERT_EQ(Write("name", "lower"), Error::None);
  ASSERT_EQ(Write("folder/inner", "x"), Error::None);
  std::vector<std::string> names{"left over"};
  EXPECT_EQ(system_.List(folder_.Path(), names), Error::None);
  std::sort(names.begin(), names.end());
  EXPECT_EQ(names, (std::vector<std::string>{"Name", "folder", "name"}));
  EXPECT_EQ(Kind("folder"), EntryKind::Directory);
  EXPECT_EQ(Kind("NAME"), EntryKind::Missing);
  EXPECT_EQ(system_.Rename(At("Name"), At("folder/inner")), Error::None);
  EXPECT_EQ(Read("folder/inner"), "upper");
  EXPECT_EQ(Kind("Name"), EntryKind::Missing);
  EXPECT_EQ(system_.SyncDirectory(At("folder")), Error::None);
  EXPECT_EQ(system_.Remove(At("folder/inner")), Error::None);
  EXPECT_EQ(Kind("folder/inner"), EntryKind::Missing);
  EXPECT_EQ(system_.RealPath(At("folder/../new/./x")), system_.RealPath(folder_.Path()) + "/new/x");
}

TEST_F(PosixFileSystemTest, RefusesWhatIsNoPlainName) {
  std::string bytes;
  ASSERT_EQ(Write("a", "kept"), Error::None);
  ASSERT_EQ(mkfifo(At("pipe").c_str(), 0600), 0);
  for (const std::string& name : {std::string("a\0b", 3), std::string("pipe"), std::string(5000, 'x')}) {
    EXPECT_EQ(system_.Read(At(name), bytes), Error::AccessError);
    EXPECT_NE(Write(name, "x"), Error::None);
  }
  EXPECT_EQ(system_.Remove(At({"a\0b", 3})), Error::AccessError);
  EXPECT_EQ(Read("a"), "kept");
}

TEST_F(PosixFileSystemTest, FollowsLinksAlsoWhereNothingIsYet) {
  using Case = std::array<const char*, 2>;
  for (const auto& [target, name] :
       {Case{"/nowhere/at/all", "away"}, Case{"ring", "ring"}, Case{".", "self"}}) {
    ASSERT_EQ(symlink(target, At(name).c_str()), 0);
  }
  EXPECT_EQ(system_.RealPath(At("away/x")), "/nowhere/at/all/x");
  EXPECT_EQ(system_.RealPath(At("self/new")), system_.RealPath(folder_.Path()) + "/new");
  EXPECT_EQ(system_.RealPath(At("ring")), At("ring"));
}

TEST_F(PosixFileSystemTest, PermissionBitsCountForAnAdministratorToo) {
  ASSERT_EQ(Write("a", "x"), Error::None);
  ASSERT_EQ(chmod(At("a").c_str(), 0440), 0);
  Error error = Error::None;
  ASSERT_NE(system_.CreateNew(At("b"), At("a"), error), nullptr);
  EXPECT_FALSE(system_.Status(At("a")).writable || system_.Status(At("b")).writable);
}

}  // namespace
}  // namespace morvane::platform
