// New Line, Delete Line, Offset, and the background image that an offset takes along.
#include "textjob/LineEdits.h"

#include <gtest/gtest.h>

#include "common/RunTimeError.h"
#include "support/FakeFileSystem.h"
#include "textjob/BackgroundOffset.h"

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

  job.Lines.assign(kMaxLines, "4");
  job.Selection = "1000";
  job.Dirty = false;
  EXPECT_THROW(InsertLine(job, "x"), common::RunTimeError);
  EXPECT_EQ(job.LineCount(), kMaxLines);
  EXPECT_FALSE(job.Dirty);
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
  const struct {
    const char* ini;
    const char* list;
    const char* iniAfter;
    const char* listAfter;
  } cases[] = {
      {"BackgroundImage=P.BMP\r\nBackgroundImageX=1\r\n", "",
       "BackgroundImage=P.BMP\r\nBackgroundImageX=1.5\r\nBackgroundImageY=-1\r\nP.BMP=0.5,-1,4,4\r\n", ""},
      {"BackgroundImage=P.BMP\r\nP.BMP=1,2,3,5\r\n", "",
       "BackgroundImage=P.BMP\r\nP.BMP=1.5,1,3,5\r\nBackgroundImageX=0.5\r\nBackgroundImageY=-1\r\n", ""},
      {"BackgroundImage=P.BMP\r\n", "A.TJB,Q.BMP,1,1,2,2\r\n", "BackgroundImage=P.BMP\r\n",
       "A.TJB,Q.BMP,1.5,0,2,2\r\n"},
      {"BackgroundImage=P.BMP\r\n", "A.TJB,,1,1,2,2\r\n", "BackgroundImage=P.BMP\r\n", "A.TJB,,1,1,2,2\r\n"},
      {"Units=in\r\n", "", "Units=in\r\n", ""},
  };
  for (const auto& c : cases) {
    test::FakeFileSystem fileSystem("/base");
    const common::Files files(fileSystem, "/base");
    const common::Settings settings(files);
    fileSystem.Put("/base/Morvane.ini", std::string("[Settings]\r\n") + c.ini);
    fileSystem.Put("/base/LockImages.txt", c.list);
    const BesideChange change = OffsetBackground(files, settings, "A.TJB", 0.5F, -1);
    ApplyBeside(files, settings, change.after);
    EXPECT_EQ(fileSystem.Get("/base/Morvane.ini"), std::string("[Settings]\r\n") + c.iniAfter);
    EXPECT_EQ(fileSystem.Get("/base/LockImages.txt"), c.listAfter);
    ApplyBeside(files, settings, change.before);
    EXPECT_EQ(fileSystem.Get("/base/Morvane.ini"), std::string("[Settings]\r\n") + c.ini);
    EXPECT_EQ(fileSystem.Get("/base/LockImages.txt"), c.list);
  }
}

}  // namespace
}  // namespace morvane::textjob
