// New Line, Delete Line, Offset, and the background image that an offset takes along.
#include "textjob/edit/LineEdits.h"

#include <gtest/gtest.h>

#include <array>

#include "support/FakeFileSystem.h"
#include "textjob/edit/BackgroundOffset.h"

namespace morvane::textjob {
namespace {

TEST(LineEdits, NewAndDeletedLines) {
  TextJob job;
  EXPECT_FALSE(DeleteLine(job));
  EXPECT_TRUE(InsertLine(job, "a"));
  job.Selection.clear();
  EXPECT_TRUE(InsertLine(job, "c"));
  job.Selection = "0";
  EXPECT_TRUE(InsertLine(job, "b"));
  EXPECT_EQ(job.Lines, (std::vector<std::string>{"a", "b", "c"}));
  EXPECT_EQ(job.Selection, "1");
  job.Selection = "0,2";
  EXPECT_FALSE(InsertLine(job, "x"));
  EXPECT_FALSE(DeleteLine(job));
  job.Selection = "1";
  EXPECT_TRUE(DeleteLine(job));
  EXPECT_EQ(job.Selection, "1");
  EXPECT_TRUE(DeleteLine(job));
  EXPECT_EQ(job.Selection, "0") << "the new last line";
  EXPECT_TRUE(DeleteLine(job));
  EXPECT_EQ(job.Selection + "/" + std::to_string(job.LineCount()), "/0");
}

TEST(LineEdits, AnOffsetWritesLinesWhole) {
  const std::string line = "0,1,2,.5,my.font.fnt,0,0,0,0,a@@,2,3,4,.5M.25";
  const std::string moved =
      "0,1.5,1,0.5,MY.fnt,0,0,0,0,a@@,2,3,4,0.750M0.250,0,@@,1,1,0,0,0,0,0,0,0,1,0,0,0,0";
  for (const char* selection : {"", "1", "0,2"}) {
    TextJob job;
    job.Lines = {line, line, line};
    job.Selection = selection;
    OffsetLines(job, {0.5F, -1, 0.25F}, "0.000");
    const bool several = std::string(selection) == "0,2";
    EXPECT_EQ(job.Lines, (std::vector<std::string>{moved, several ? line : moved, moved})) << selection;
    EXPECT_TRUE(job.Dirty);
  }
}

TEST(LineEdits, TheBackgroundGoesAlong) {
  const std::string section = "[Settings]\r\n", image = section + "BackgroundImage=P.BMP\r\n";
  using Case = std::array<std::string, 4>;  // settings and list, before and after
  for (const auto& [ini, list, iniAfter, listAfter] :
       {Case{image + "BackgroundImageX=1\r\n", "",
             image + "BackgroundImageX=1.5\r\nBackgroundImageY=-1\r\nP.BMP=0.5,-1,4,4\r\n", ""},
        Case{image + "P.BMP=1,2,3,5\r\n", "",
             image + "P.BMP=1.5,1,3,5\r\nBackgroundImageX=0.5\r\nBackgroundImageY=-1\r\n", ""},
        Case{image, "A.TJB,Q.BMP,1,1,2,2\r\n", image, "A.TJB,Q.BMP,1.5,0,2,2\r\n"},
        Case{image, "A.TJB,,1,1,2,2\r\n", image, "A.TJB,,1,1,2,2\r\n"},
        Case{section + "Units=in\r\n", "", section + "Units=in\r\n", ""}}) {
    test::FakeFileSystem fileSystem("/base");
    const common::Files files(fileSystem, "/base");
    const common::Settings settings(files);
    fileSystem.Put("/base/Morvane.ini", ini);
    fileSystem.Put("/base/LockImages.txt", list);
    const BesideChange change = OffsetBackground(files, settings, "A.TJB", 0.5F, -1);
    ApplyBeside(files, settings, change.after);
    EXPECT_EQ(fileSystem.Get("/base/Morvane.ini"), iniAfter);
    EXPECT_EQ(fileSystem.Get("/base/LockImages.txt"), listAfter);
    ApplyBeside(files, settings, change.before);
    EXPECT_EQ(fileSystem.Get("/base/Morvane.ini"), ini);
    EXPECT_EQ(fileSystem.Get("/base/LockImages.txt"), list);
  }
}

}  // namespace
}  // namespace morvane::textjob
