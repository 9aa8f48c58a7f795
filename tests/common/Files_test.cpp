#include "common/Files.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include "common/RunTimeError.h"
#include "platform/posix/PosixFileSystem.h"
#include "support/FakeFileSystem.h"
#include "support/TempFolder.h"

namespace morvane::common {
namespace {

// The path, or the description of the error.
template <typename Call>
std::string Outcome(const Call& call) {
  try {
    return call();
  } catch (const RunTimeError& error) {
    return error.description();
  }
}

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
  struct Case {
    std::string name;
    const char* path;
  };
  const Case cases[] = {{"Font1.FNT", "/base/Font1.FNT"},
                        {"FONT1.fnt", "/base/Font1.FNT"},
                        {"\\Temp\\tmp.lst", "/base/TEMP/tmp.lst"},
                        {"\\Temp\\New.lst", "/base/TEMP/New.lst"},
                        {"JOBS\\sub\\A.TJB", "/base/Jobs/Sub/a.tjb"},
                        {"jobs/none/A.TJB", "/base/Jobs/none/A.TJB"},
                        {".\\JOBS\\\\SUB\\.\\A.TJB", "/base/Jobs/Sub/a.tjb"},
                        {"m\xE4rz.tjb", "/base/M\xC3\x84RZ.TJB"},
                        {"n\xE9w.tjb", "/base/n\xC3\xA9w.tjb"},
                        {"Twin.tjb", "/base/TWIN.tjb"},
                        {"twin.TJB", "/base/twin.TJB"},
                        {"C:\\run.ret", "/tmp/Run.ret"},
                        {"d:sub\\x", "/tmp/sub/x"},
                        {"/home/x/\xD0\x98/A.TJB", "/home/x/\xD0\x98/a.tjb"},
                        {"/home/x\\\xE9.tjb", "/home/x/\xC3\xA9.tjb"},
                        {"", "/base"},
                        {"\\", "/base"}};
  for (const Case& c : cases) EXPECT_EQ(files_.Resolve(c.name), c.path) << c.name;
}

TEST_F(FilesTest, AnExactNameTakesOneLook) {
  disk_.Put("/base/A.TJB", "");
  disk_.statusCalls = 0;
  files_.Resolve("A.TJB");
  EXPECT_EQ(disk_.statusCalls, 1);
}

TEST_F(FilesTest, NamesFromDocumentsStayInside) {
  disk_.Put("/base/Jobs/a.job", "");
  const std::string refused = "Path/File access error";
  struct Case {
    std::string name;
    const char* folder;
    std::string path;
  };
  const Case cases[] = {{"JOBS\\A.JOB", "", "/base/Jobs/a.job"},
                        {"\\Jobs\\..\\JOBS\\a.job", "", "/base/Jobs/a.job"},
                        {"A.JOB", "Jobs", "/base/Jobs/a.job"},
                        {"new.job", "\\Jobs\\", "/base/Jobs/new.job"},
                        {"..\\A.JOB", "Jobs", refused},
                        {"..", "", refused},
                        {"x\\..\\..\\base\\A.JOB", "", refused},
                        {"x/../../base/A.JOB", "", refused},
                        {"/base/A.JOB", "", refused},
                        {"C:\\A.JOB", "", refused},
                        {"A:B", "", refused},
                        {"", "", refused},
                        {".", "", refused},
                        {"Jobs\\..", "", refused},
                        {std::string("A.JOB\0.txt", 10), "", refused},
                        {"A\r\nB", "", refused},
                        {"A\x7F", "", refused}};
  for (const Case& c : cases) {
    EXPECT_EQ(Outcome([&] { return files_.ResolveInside(c.name, c.folder); }), c.path) << c.name;
  }
}

TEST_F(FilesTest, AnEndlessNameCostsNoMoreThanItsLength) {
  std::string name;
  for (int i = 0; i < 500'000; ++i) name += "a\\";
  EXPECT_EQ(files_.ResolveInside(name).size(), name.size() + 5);
}

TEST_F(FilesTest, ProgramNamesLeadBack) {
  struct Case {
    const char* native;
    const char* name;
  };
  for (const Case& c :
       {Case{"/base/A.TJB", "A.TJB"}, Case{"/base/Jobs/\xC3\xA9.TJB", "Jobs\\\xE9.TJB"},
        Case{"/home/x/A.TJB", "/home/x/A.TJB"}, Case{"/home/\xC3\xA9/A", "/home/\xE9/A"},
        Case{"/home/\xD0\x98/A", "/home/\xD0\x98/A"}, Case{"/base/\xD0\x98.TJB", "/base/\xD0\x98.TJB"},
        Case{"/home/\xC3\x83\xC2\xA9/A", "/home/\xC3\x83\xC2\xA9/A"}, Case{"/base/c:x", "/base/c:x"}}) {
    EXPECT_EQ(files_.ProgramName(c.native), c.name);
    EXPECT_EQ(files_.Resolve(c.name), c.native);
  }
}

TEST_F(FilesTest, ListsByPatternInOrder) {
  for (const char* name : {"b.tjb", "A.TJB", "\xC3\xA9.tjb", "a.tjb", "Z.Tjb", "c.job", "\xD0\x98.tjb",
                           ".morvane-save-0", "Sub.tjb/x"}) {
    disk_.Put(std::string("/base/") + name, "");
  }
  using Names = std::vector<std::string>;
  EXPECT_EQ(files_.List("*.TJB"), (Names{"A.TJB", "a.tjb", "b.tjb", "Z.Tjb", "\xE9.tjb"}));
  EXPECT_EQ(files_.List("*.*", "SUB.TJB"), Names{"x"});
  EXPECT_EQ(files_.List("*.*").size(), 6u);
  EXPECT_EQ(files_.List("*.*", "none"), Names{});
}

TEST_F(FilesTest, ReadsWritesAndCopies) {
  files_.WriteStraight("a.txt", "bytes");
  files_.Copy("A.TXT", "b.txt");
  files_.Copy("b.txt", "B.TXT");
  EXPECT_EQ(files_.Read("B.TXT"), "bytes");
  EXPECT_EQ(files_.ReadInside("b.txt"), "bytes");
  EXPECT_GT(files_.ModifiedTime("b.txt"), files_.ModifiedTime("a.txt"));
  EXPECT_TRUE(files_.FileExists("A.TXT"));
  EXPECT_FALSE(files_.FileExists("\\"));
  disk_.SetWritable("/base/a.txt", false);
  const auto write = [&](const char* name) {
    return Outcome([&] {
      files_.WriteStraight(name, "x");
      return std::string("written");
    });
  };
  EXPECT_EQ(write("a.txt"), "Permission denied");
  EXPECT_EQ(write("none\\a.txt"), "Path not found");
  disk_.faults.bytesLeft = 0;
  EXPECT_EQ(write("c.txt"), "Disk full");
  EXPECT_EQ(Outcome([&] { return files_.Read("none"); }), "File not found");
  EXPECT_EQ(Outcome([&] { return std::to_string(files_.ModifiedTime("none")); }), "File not found");
  files_.RemoveQuietly("B.txt");
  files_.RemoveQuietly("B.txt");
  EXPECT_FALSE(disk_.Has("/base/b.txt"));
}

TEST_F(FilesTest, ClearsTheTemporaryFolderOnly) {
  files_.EnsureTemp();
  EXPECT_EQ(disk_.Status("/base/Temp").kind, platform::EntryKind::Directory);
  disk_.Put("/base/Temp/tmp.lst", "");
  disk_.Put("/base/Temp/Kept/x", "");
  disk_.Put("/base/A.TJB", "");
  disk_.Put("/base/.morvane-save-12", "");
  files_.ClearTemp();
  files_.ClearLeftovers();
  EXPECT_FALSE(disk_.Has("/base/Temp/tmp.lst"));
  EXPECT_FALSE(disk_.Has("/base/.morvane-save-12"));
  EXPECT_TRUE(disk_.Has("/base/Temp/Kept/x"));
  EXPECT_TRUE(disk_.Has("/base/A.TJB"));
}

TEST(FilesOnDisk, LinksDoNotLeadADocumentOut) {
  const test::TempFolder base;
  const test::TempFolder outside;
  platform::PosixFileSystem system;
  const Files files(system, base.Path());
  outside.Write("secret", "x");
  base.Write("a.job", "x");
  const auto link = [&](const std::string& target, const char* name) {
    ASSERT_EQ(symlink(target.c_str(), (base / name).c_str()), 0);
  };
  link(outside / "secret", "link.job");
  link(outside.Path(), "Temp");
  link(outside / "new", "dangling.job");
  link("a.job", "inner.job");
  for (const char* name : {"LINK.JOB", "Temp\\secret", "Temp\\new.job", "dangling.job"}) {
    EXPECT_EQ(Outcome([&] { return files.ResolveInside(name); }), "Path/File access error") << name;
  }
  EXPECT_EQ(files.ResolveInside("INNER.JOB"), base / "inner.job");
  files.ClearTemp();
  EXPECT_EQ(outside.Read("secret"), "x");
}

}  // namespace
}  // namespace morvane::common
