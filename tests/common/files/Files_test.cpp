#include "common/files/Files.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include "platform/posix/PosixFileSystem.h"
#include "support/Failure.h"
#include "support/FakeFileSystem.h"
#include "support/TempFolder.h"

namespace morvane::common {
namespace {

using test::Failure;
using Names = std::vector<std::string>;

class FilesTest : public ::testing::Test {
 protected:
  test::FakeFileSystem disk_{"/base"};
  Files files_{disk_, "/base/"};
};

TEST_F(FilesTest, ResolvesProgramNames) {
  for (const char* path : {"/base/Font1.FNT", "/base/Jobs/Sub/a.tjb", "/base/TEMP/tmp.lst",
                           "/base/M\xC3\x84RZ.TJB", "/base/twin.TJB", "/base/TWIN.tjb",
                           "/home/x/\xD0\x98/a.tjb", "/home/x/\xC3\xA9.tjb", "/tmp/Run.ret"}) {
    disk_.Put(path, path);
  }
  using Case = std::pair<const char*, const char*>;
  for (const auto& [name, path] :
       {Case{"Font1.FNT", "/base/Font1.FNT"}, Case{"FONT1.fnt", "/base/Font1.FNT"},
        Case{"\\Temp\\tmp.lst", "/base/TEMP/tmp.lst"}, Case{"\\Temp\\New.lst", "/base/TEMP/New.lst"},
        Case{"jobs/none/A.TJB", "/base/Jobs/none/A.TJB"},
        Case{".\\JOBS\\\\SUB\\.\\A.TJB", "/base/Jobs/Sub/a.tjb"},
        Case{"m\xE4rz.tjb", "/base/M\xC3\x84RZ.TJB"}, Case{"n\xE9w.tjb", "/base/n\xC3\xA9w.tjb"},
        Case{"Twin.tjb", "/base/TWIN.tjb"}, Case{"twin.TJB", "/base/twin.TJB"},
        Case{"C:\\run.ret", "/tmp/Run.ret"}, Case{"d:sub\\x", "/tmp/sub/x"},
        Case{"/home/x/\xD0\x98/A.TJB", "/home/x/\xD0\x98/a.tjb"},
        Case{"/home/x\\\xE9.tjb", "/home/x/\xC3\xA9.tjb"}, Case{"", "/base"}, Case{"\\", "/base"}}) {
    EXPECT_EQ(files_.Resolve(name), path) << name;
  }
  disk_.statusCalls = 0;
  files_.Resolve("Font1.FNT");
  EXPECT_EQ(disk_.statusCalls, 1) << "an exact name takes one look";
}

TEST_F(FilesTest, NamesFromDocumentsStayInside) {
  disk_.Put("/base/Jobs/a.job", "");
  using Case = std::array<const char*, 3>;
  for (const auto& [name, folder, path] :
       {Case{"JOBS\\A.JOB", "", "/base/Jobs/a.job"}, Case{"\\Jobs\\..\\JOBS\\a.job", "", "/base/Jobs/a.job"},
        Case{"A.JOB", "Jobs", "/base/Jobs/a.job"}, Case{"new.job", "\\Jobs\\", "/base/Jobs/new.job"}}) {
    EXPECT_EQ(files_.ResolveInside(name, folder), path) << name;
  }
  for (const char* name : {"..\\..\\A.JOB", "..", "x\\..\\..\\..\\base\\A.JOB", "../../base/A.JOB",
                           "/base/A.JOB", "C:\\A.JOB", "A:B", "", ".", "x\\..", "A\r\nB", "A\x7F"}) {
    EXPECT_EQ(Failure([&] { files_.ResolveInside(name, "Jobs"); }), "Path/File access error") << name;
  }
  EXPECT_EQ(Failure([&] { files_.ResolveInside({"A\0.txt", 6}); }), "Path/File access error");
  std::string endless;
  for (int i = 0; i < 500'000; ++i) endless += "a\\";
  EXPECT_EQ(files_.ResolveInside(endless).size(), endless.size() + 5) << "costs no more than its length";
}

TEST_F(FilesTest, ProgramNamesLeadBack) {
  using Case = std::pair<const char*, const char*>;
  for (const auto& [native, name] :
       {Case{"/base/A.TJB", "A.TJB"}, Case{"/base/Jobs/\xC3\xA9.TJB", "Jobs\\\xE9.TJB"},
        Case{"/home/\xC3\xA9/A", "/home/\xE9/A"}, Case{"/home/\xD0\x98/A", "/home/\xD0\x98/A"},
        Case{"/base/\xD0\x98.TJB", "/base/\xD0\x98.TJB"},
        Case{"/home/\xC3\x83\xC2\xA9/A", "/home/\xC3\x83\xC2\xA9/A"}, Case{"/base/c:x", "/base/c:x"}}) {
    EXPECT_EQ(files_.ProgramName(native), name);
    EXPECT_EQ(files_.Resolve(name), native);
  }
}

TEST_F(FilesTest, ListsByPatternInOrder) {
  for (const char* name : {"b.tjb", "A.TJB", "\xC3\xA9.tjb", "a.tjb", "Z.Tjb", "c.job", "\xD0\x98.tjb",
                           ".morvane-save-0", "Sub.tjb/x"}) {
    disk_.Put(std::string("/base/") + name, "");
  }
  EXPECT_EQ(files_.List("*.TJB"), (Names{"A.TJB", "a.tjb", "b.tjb", "Z.Tjb", "\xE9.tjb"}));
  EXPECT_EQ(files_.List("*.*", "SUB.TJB"), Names{"x"});
  EXPECT_EQ(files_.List("*.*").size(), 6u);
  EXPECT_EQ(files_.List("*.*", "none"), Names{});
}

TEST_F(FilesTest, ReadsWritesAndCopies) {
  files_.WriteStraight("a.txt", "bytes");
  files_.Copy("A.TXT", "b.txt");
  files_.Copy("b.txt", "B.TXT");
  EXPECT_EQ(files_.ReadInside("B.TXT"), "bytes");
  EXPECT_GT(files_.ModifiedTime("b.txt"), files_.ModifiedTime("a.txt"));
  EXPECT_TRUE(files_.FileExists("A.TXT") && !files_.FileExists("\\"));
  disk_.SetWritable("/base/a.txt", false);
  const auto write = [&](const char* name) { return Failure([&] { files_.WriteStraight(name, "x"); }); };
  EXPECT_EQ(write("a.txt"), "Permission denied");
  EXPECT_EQ(write("none\\a.txt"), "Path not found");
  disk_.faults.bytesLeft = 0;
  EXPECT_EQ(write("c.txt"), "Disk full");
  EXPECT_EQ(Failure([&] { files_.Read("none"); }), "File not found");
  EXPECT_EQ(Failure([&] { files_.ModifiedTime("none"); }), "File not found");
  for (int time = 0; time < 2; ++time) files_.RemoveQuietly("B.txt");
  EXPECT_FALSE(disk_.Has("/base/b.txt"));
}

TEST_F(FilesTest, ClearsTheTemporaryFolderOnly) {
  files_.EnsureTemp();
  EXPECT_TRUE(disk_.Has("/base/Temp"));
  for (const char* name : {"Temp/tmp.lst", "Temp/Kept/x", "A.TJB", ".morvane-save-12"}) {
    disk_.Put(std::string("/base/") + name, "");
  }
  files_.ClearTemp();
  files_.ClearLeftovers();
  EXPECT_FALSE(disk_.Has("/base/Temp/tmp.lst") || disk_.Has("/base/.morvane-save-12"));
  EXPECT_TRUE(disk_.Has("/base/Temp/Kept/x") && disk_.Has("/base/A.TJB"));
}

TEST(FilesOnDisk, LinksDoNotLeadADocumentOut) {
  const test::TempFolder base;
  const test::TempFolder outside;
  platform::PosixFileSystem system;
  const Files files(system, base.Path());
  outside.Write("secret", "x");
  base.Write("a.job", "x");
  using Case = std::pair<std::string, const char*>;
  for (const auto& [target, name] : {Case{outside / "secret", "link.job"}, Case{outside.Path(), "Temp"},
                                     Case{outside / "new", "dangling.job"}, Case{"a.job", "inner.job"}}) {
    ASSERT_EQ(symlink(target.c_str(), (base / name).c_str()), 0);
  }
  for (const char* name : {"LINK.JOB", "Temp\\secret", "Temp\\new.job", "dangling.job"}) {
    EXPECT_EQ(Failure([&] { files.ResolveInside(name); }), "Path/File access error") << name;
  }
  EXPECT_EQ(files.ResolveInside("INNER.JOB"), base / "inner.job");
  files.ClearTemp();
  EXPECT_EQ(outside.Read("secret"), "x");
}

}  // namespace
}  // namespace morvane::common
