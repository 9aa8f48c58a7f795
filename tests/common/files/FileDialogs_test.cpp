#include "common/files/FileDialogs.h"

#include <gtest/gtest.h>

#include "support/BaseStation.h"

namespace morvane::common {
namespace {

constexpr const char* kFilter = "TJB Files|*.TJB";

class FileDialogsTest : public testing::Test, public test::BaseStation {
 protected:
};

TEST_F(FileDialogsTest, RemembersTheFolderOfEachFilter) {
  prompts.files = {{"/home/x/A.TJB"}, {"/base/Jobs/B.TJB"}, {}, {"/C.TJB"}, {"/x/D.EXE"}};
  EXPECT_EQ(dialogs.OpenFileDialog(kFilter, "tjb", "NEW.TJB"), "/home/x/A.TJB");
  EXPECT_EQ(dialogs.SaveFileDialog(kFilter, "tjb"), "Jobs\\B.TJB");
  EXPECT_EQ(dialogs.OpenFileDialog(kFilter, "tjb"), "");
  EXPECT_EQ(dialogs.OpenFileDialog("Font Files|*.fnt", "fnt"), "/C.TJB");
  EXPECT_EQ(dialogs.OpenFileDialog(kFilter, "EXE", "", "/dev"), "/x/D.EXE");
  std::string asked;
  for (const auto& request : prompts.requests) asked += request.title + ' ' + request.directory + "; ";
  EXPECT_EQ(asked,
            "Open File /base; Save File As /home/x; Open File /base/Jobs; Open File /base; Open File /dev; ");
  EXPECT_EQ(prompts.requests[0].defaultExtension + prompts.requests[0].fileName, "tjbNEW.TJB");
  EXPECT_EQ(folders["Font Files|*.fnt"], "/");
}

TEST_F(FileDialogsTest, SeveralFilesShareOneFolder) {
  using Names = std::vector<std::string>;
  using Case = std::tuple<Names, std::string, Names>;
  for (const auto& [paths, directory, names] :
       {Case{{"/base/A.TJB", "/base/B.TJB"}, "", {"A.TJB", "B.TJB"}},
        Case{{"/base/Jobs/A.TJB"}, "Jobs", {"A.TJB"}},
        Case{{"/home/\xC3\xA9/A", "/home/\xC3\xA9/\xC3\xA9"}, "/home/\xE9", {"A", "\xE9"}},
        Case{{"/base/A.TJB", "/base/\xD0\x98.TJB"}, "/base", {"A.TJB", "\xD0\x98.TJB"}}, Case{}}) {
    prompts.files = {paths};
    const ChosenFiles chosen = dialogs.MultiOpenDialog(kFilter, "tjb");
    EXPECT_EQ(chosen.directory, directory);
    EXPECT_EQ(chosen.names, names);
    for (std::size_t i = 0; i < paths.size(); ++i) {
      EXPECT_EQ(files.Resolve(chosen.directory + "\\" + chosen.names[i]), paths[i]);
    }
  }
  EXPECT_EQ(prompts.requests[0].title, "Download File(s)");
}

}  // namespace
}  // namespace morvane::common
