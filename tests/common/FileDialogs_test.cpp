#include "common/FileDialogs.h"

#include <gtest/gtest.h>

#include "support/FakeFileSystem.h"
#include "support/FakePrompts.h"

namespace morvane::common {
namespace {

constexpr const char* kFilter = "TJB Files|*.TJB";

class FileDialogsTest : public ::testing::Test {
 protected:
  test::FakeFileSystem disk_{"/base"};
  Files files_{disk_, "/base"};
  test::FakePrompts prompts_;
  DialogFolders folders_;
  FileDialogs dialogs_{prompts_, files_, folders_};
};

TEST_F(FileDialogsTest, RemembersTheFolderOfEachFilter) {
  prompts_.files = {{"/home/x/A.TJB"}, {"/base/Jobs/B.TJB"}, {}, {"/C.TJB"}, {"/x/D.EXE"}};
  EXPECT_EQ(dialogs_.OpenFileDialog(kFilter, "tjb", "NEW.TJB"), "/home/x/A.TJB");
  EXPECT_EQ(dialogs_.SaveFileDialog(kFilter, "tjb"), "Jobs\\B.TJB");
  EXPECT_EQ(dialogs_.OpenFileDialog(kFilter, "tjb"), "");
  EXPECT_EQ(dialogs_.OpenFileDialog("Font Files|*.fnt", "fnt"), "/C.TJB");
  EXPECT_EQ(dialogs_.OpenFileDialog(kFilter, "EXE", "", "/dev"), "/x/D.EXE");
  struct Expected {
    const char* title;
    const char* directory;
  };
  const Expected expected[] = {{"Open File", "/base"},
                               {"Save File As", "/home/x"},
                               {"Open File", "/base/Jobs"},
                               {"Open File", "/base"},
                               {"Open File", "/dev"}};
  for (std::size_t i = 0; i < std::size(expected); ++i) {
    EXPECT_EQ(prompts_.requests[i].title, expected[i].title);
    EXPECT_EQ(prompts_.requests[i].directory, expected[i].directory);
  }
  EXPECT_EQ(prompts_.requests[0].filter, kFilter);
  EXPECT_EQ(prompts_.requests[0].defaultExtension, "tjb");
  EXPECT_EQ(prompts_.requests[0].fileName, "NEW.TJB");
  EXPECT_EQ(folders_["Font Files|*.fnt"], "/");
}

TEST_F(FileDialogsTest, SeveralFilesShareOneFolder) {
  struct Case {
    std::vector<std::string> paths;
    std::string directory;
    std::vector<std::string> names;
  };
  const Case cases[] = {{{"/base/A.TJB", "/base/B.TJB"}, "", {"A.TJB", "B.TJB"}},
                        {{"/base/Jobs/A.TJB"}, "Jobs", {"A.TJB"}},
                        {{"/home/\xC3\xA9/A", "/home/\xC3\xA9/\xC3\xA9"}, "/home/\xE9", {"A", "\xE9"}},
                        {{"/base/A.TJB", "/base/\xD0\x98.TJB"}, "/base", {"A.TJB", "\xD0\x98.TJB"}},
                        {{}, "", {}}};
  for (const Case& c : cases) {
    prompts_.files = {c.paths};
    const ChosenFiles chosen = dialogs_.MultiOpenDialog(kFilter, "tjb");
    EXPECT_EQ(chosen.directory, c.directory);
    EXPECT_EQ(chosen.names, c.names);
    for (std::size_t i = 0; i < c.paths.size(); ++i) {
      EXPECT_EQ(files_.Resolve(chosen.directory + "\\" + chosen.names[i]), c.paths[i]);
    }
  }
  EXPECT_EQ(prompts_.requests[0].title, "Download File(s)");
}

}  // namespace
}  // namespace morvane::common
