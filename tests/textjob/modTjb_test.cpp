#include "textjob/modTjb.h"

#include <gtest/gtest.h>

#include <limits>

#include "common/RunTimeError.h"
#include "support/FakeClock.h"
#include "support/FakeFileSystem.h"
#include "support/FakeLocale.h"
#include "support/FakePrompts.h"
#include "textjob/JobFile.h"

namespace morvane::textjob {
namespace {

const std::string kZeros = ",0,@@,0,0,0,0,0,0,0,0,0,0,0,0,0,0";

TEST(Tjb, ParsesALineInTheFilesOrder) {
  const TextJobLine line = ParseTjbLine(
      "9,1,2,3,font1.fnt,3,4,5,6,a,b@@,7,8,9,0.5M1.5,1,Ask, "
      "please@@,10,11,12,1,13,14,15,16,17,0,18,19,20,21");
  EXPECT_EQ(line.Type, 9);
  EXPECT_EQ(line.XPos, 1);
  EXPECT_EQ(line.YPos, 2);
  EXPECT_EQ(line.Height, 3);
  EXPECT_EQ(line.Font, "FONT1.FNT");
  EXPECT_EQ(line.Style, 3);
  EXPECT_EQ(line.Incr, 4);
  EXPECT_EQ(line.Angle, 5);
  EXPECT_EQ(line.Radius, 6);
  EXPECT_EQ(line.Text, "A,B");
  EXPECT_EQ(line.Compress, 7);
  EXPECT_EQ(line.Side, 8);
  EXPECT_EQ(line.Tool, 9);
  EXPECT_EQ(line.Depth, 0.5F);
  EXPECT_EQ(line.Depth2, 1.5F);
  EXPECT_EQ(line.Justify, 1);
  EXPECT_EQ(line.Prompt, "Ask, please");
  EXPECT_EQ(line.ScaleX, 10);
  EXPECT_EQ(line.ScaleY, 11);
  EXPECT_EQ(line.Rotate, 12);
  EXPECT_EQ(line.Location, 1);
  EXPECT_EQ(line.LateStart, 13);
  EXPECT_EQ(line.LateEnd, 14);
  EXPECT_EQ(line.EarlyShut, 15);
  EXPECT_EQ(line.Overlap, 16);
  EXPECT_EQ(line.OverlapHt, 17);
  EXPECT_EQ(line.KeepRatio, 0);
  EXPECT_EQ(line.Width, 18);
  EXPECT_EQ(line.Margin, 19);
  EXPECT_EQ(line.Backlash, 20);
  EXPECT_EQ(line.Spacing, 21);
}

TEST(Tjb, ALineThatStopsEarlyLeavesDefaults) {
  for (const char* text :
       {"", "4", "0,1.5,2,.125,F", "0,1.5,2,.125,F,,,,,", "0,0,0,0,,0,0,0,0,x@@,,,,,,@@,,,,,,,,,,,,,,"}) {
    const TextJobLine line = ParseTjbLine(text);
    EXPECT_EQ(line.Compress, 1) << text;
    EXPECT_EQ(line.Side, 1) << text;
    EXPECT_EQ(line.Tool, 1) << text;
    EXPECT_EQ(line.ScaleX, 1) << text;
    EXPECT_EQ(line.ScaleY, 1) << text;
    EXPECT_EQ(line.KeepRatio, 1) << text;
    EXPECT_EQ(line.Width + line.Depth + line.Depth2 + line.Rotate + line.Spacing, 0) << text;
  }
}

TEST(Tjb, TextOfOddLines) {
  const struct {
    const char* line;
    const char* text;
    float compress;
  } cases[] = {
      {"0,0,0,1,FONT1.fnt,0,0,0,0,A,B,C@@,1", "A,B,C", 1},
      {"0,0,0,1,F,0,0,0,0,A@@,2@@,B@@,3", "A", 2},
      {"0,0,0,1,F,0,0,0,0,rest, of it", "rest, of it", 1},
      {"0,0,0,1,F,0,0,0,0,ends@@", "ends@@", 1},
      {"2,0,0,0,.fnt,0,0,0,0,logo.job@@,0.5", "LOGO.JOB", 0.5F},
      {"14,0,0,0,.fnt,0,0,0,0,low.pre@@,1", "low.pre", 1},
      {"16,0,0,0,.fnt,0,0,0,0,\xE9t\xE9.ras@@,1", "\xC9T\xC9.RAS", 1},
      {"0,0,0,0,.fnt,0,0,0,0,\xE9\x80\xFF@@,-2", "\xE9\x80\xFF", -2},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(ParseTjbLine(c.line).Text, c.text) << c.line;
    EXPECT_EQ(ParseTjbLine(c.line).Compress, c.compress) << c.line;
  }
}

TEST(Tjb, CorrectionsAndBadNumbers) {
  const TextJobLine zeros = ParseTjbLine("0,0,0,0,.fnt,0,0,0,0,@@,0,0,0,0.000M0.000" + kZeros);
  EXPECT_EQ(zeros.Compress, 1);
  EXPECT_EQ(zeros.Side, 1);
  EXPECT_EQ(zeros.Tool, 1);
  EXPECT_EQ(zeros.Depth2, 0);
  EXPECT_EQ(zeros.ScaleX, 0);
  EXPECT_EQ(zeros.KeepRatio, 0);
  const TextJobLine odd = ParseTjbLine("2.5,1e308,nan,&H10,f,1e99,x,-1e308,.5.5,t@@,,99999,-99999,M.5M7");
  EXPECT_EQ(odd.Type, 2);
  EXPECT_EQ(odd.XPos, std::numeric_limits<float>::max());
  EXPECT_EQ(odd.YPos, 0);
  EXPECT_EQ(odd.Height, 16);
  EXPECT_EQ(odd.Style, std::numeric_limits<std::int32_t>::max());
  EXPECT_EQ(odd.Angle, std::numeric_limits<float>::lowest());
  EXPECT_EQ(odd.Radius, .5F);
  EXPECT_EQ(odd.Side, 32767);
  EXPECT_EQ(odd.Tool, -32768);
  EXPECT_EQ(odd.Depth, 0);
  EXPECT_EQ(odd.Depth2, .5F);
}

TEST(TjbWords, StandUnderTheirNumbers) {
  const struct {
    std::int32_t (*index)(std::string_view);
    std::vector<const char*> words;
  } tables[] = {
      {LineTypeIndex,
       {"Normal", "Serial", "Graphic", "DateCode", "Move", "Panel", "Data Matrix", "Fill", "Variable",
        "Image", "Cap", "Scale", "Start Position", "Closed Path", "Pressure", "Park Path", "Raster"}},
      {StyleIndex, {"Regular", "ArcText", "Angular", "RadiusText"}},
      {JustifyIndex, {"Left", "Center", "Right"}},
      {LocationIndex, {"Outside", "Inside"}},
      {KeepRatioIndex, {"No", "Yes"}}};
  for (const auto& [index, words] : tables) {
    for (std::size_t i = 0; i < words.size(); ++i) {
      EXPECT_EQ(static_cast<std::size_t>(index(words[i])), i) << words[i];
    }
    EXPECT_EQ(index("none"), 0);
  }
}

// The font token comes in many spellings and is written in one; numbers keep seven digits.
TEST(Tjb, Rewrite) {
  const struct {
    const char* from;
    std::string to;
  } cases[] = {
      {"0,1.5,2,0.125,FONT1.fnt,0,0,0,0,SAMPLE@@,1,1,1,0.000,0,@@,0,0,0,0,0,0,0,0,0,0,0,0,0,0",
       "0,1.5,2,0.125,FONT1.fnt,0,0,0,0,SAMPLE@@,1,1,1,0.000,0,@@,0,0,0,0,0,0,0,0,0,0,0,0,0,0"},
      {"2,0,0,0,.fnt,0,0,0,0,logo.job@@,0.5,1,2,0.010M0.020,0,@@,0,0",
       "2,0,0,0,.fnt,0,0,0,0,LOGO.JOB@@,0.5,1,2,0.010M0.020,0,@@,0,0,0,0,0,0,0,0,0,1,0,0,0,0"},
      {"0,.1,-.50,1234567.8,my.font.fnt,0,0,0,0,\x80\xFF@@",
       "0,0.1,-0.5,1234568,MY.fnt,0,0,0,0,\x80\xFF@@@@,1,1,1,0.000,0,@@,1,1,0,0,0,0,0,0,0,1,0,0,0,0"},
      {"0,0,0,.1,font1,0,0,0,0,T@@,0,0,0,0.0625M0.0004",
       "0,0,0,0.1,FONT1.fnt,0,0,0,0,T@@,1,1,1,0.063M0.000,0,@@,1,1,0,0,0,0,0,0,0,1,0,0,0,0"},
  };
  for (const auto& c : cases) {
    TextJobLine line = ParseTjbLine(c.from);
    line.Font = FontToken(line.Font);
    EXPECT_EQ(FormatTjbLine(line, "0.000"), c.to);
  }
}

class TjbFile : public testing::Test {
 protected:
  test::FakeFileSystem fileSystem{"/base"};
  common::Files files{fileSystem, "/base"};
  test::FakePrompts prompts;
  TextJob job;
};

TEST_F(TjbFile, RoundTrip) {
  const std::string bytes = "COMMENT,A, b \xE9\r\n0,0,0,1,F,0,0,0,0,x@@\r\n4\r\n";
  fileSystem.Put("/base/A.TJB", bytes);
  ASSERT_TRUE(LoadTjbFile(job, "a.tjb", files, prompts));
  EXPECT_EQ(job.Comment, "A, b \xE9");
  EXPECT_EQ(job.LineCount(), 2U);
  job.Dirty = true;
  ASSERT_TRUE(SaveTjbFile(job, "B.TJB", files, prompts));
  EXPECT_FALSE(job.Dirty);
  EXPECT_EQ(fileSystem.Get("/base/B.TJB"), bytes);
}

TEST_F(TjbFile, CommentsMoveToTheTopAndBlankLinesVanish) {
  ReadTjb("4\r\nCOMMENT,first\n\n12\rCOMMENT,last\r\n\r\ncomment,no", job);
  EXPECT_EQ(WriteTjb(job), "COMMENT,last\r\n4\r\n12\r\ncomment,no\r\n");
}

TEST_F(TjbFile, OneLineTooMany) {
  std::string bytes;
  for (std::size_t i = 0; i < kMaxLines; ++i) bytes += "4\r\n\r\n";
  ReadTjb(bytes, job);
  EXPECT_EQ(job.LineCount(), kMaxLines);
  fileSystem.Put("/base/BIG.TJB", bytes + "12\r\nCOMMENT,too late\r\n");
  EXPECT_FALSE(LoadTjbFile(job, "BIG.TJB", files, prompts));
  EXPECT_EQ(prompts.Texts(), std::vector<std::string>{"Load(BIG.TJB) Subscript out of range"});
  EXPECT_EQ(job.LineCount(), kMaxLines);
  EXPECT_EQ(job.Comment, "");
  EXPECT_THROW(ParseTjbLine(job, kMaxLines), common::RunTimeError);
}

TEST_F(TjbFile, FailuresAreToldAndTheOldFileStays) {
  EXPECT_FALSE(LoadTjbFile(job, "NONE.TJB", files, prompts));
  fileSystem.Put("/base/A.TJB", "old");
  fileSystem.faults.bytesLeft = 3;
  job.Dirty = true;
  EXPECT_FALSE(SaveTjbFile(job, "A.TJB", files, prompts));
  fileSystem.faults = {};
  fileSystem.SetWritable("/base/A.TJB", false);
  EXPECT_FALSE(SaveTjbFile(job, "A.TJB", files, prompts));
  EXPECT_EQ(prompts.Texts(),
            (std::vector<std::string>{"Load(NONE.TJB) File not found", "Save(A.TJB) Disk full",
                                      "Save(A.TJB) Permission denied"}));
  EXPECT_TRUE(job.Dirty);
  EXPECT_EQ(fileSystem.Get("/base/A.TJB"), "old");
}

TEST_F(TjbFile, NewJobKeepsTheComment) {
  job.Comment = "mine";
  job.Lines = {"4"};
  EXPECT_TRUE(LoadTjbFile(job, kNewJob, files, prompts));
  EXPECT_EQ(job.Comment, "mine");
  EXPECT_EQ(job.LineCount(), 0U);
}

TEST_F(TjbFile, NewLine) {
  const test::FakeClock clock;
  const test::FakeLocale locale;
  const auto add = [&](const char* name, const char* ini) {
    return NewJobLine(job, name, common::SettingsSnapshot(ini), clock, locale);
  };
  EXPECT_EQ(add("A.TJB", ""), "0,0,0,0.125,FONT1.fnt,0,0,0,0,New@@,1");
  EXPECT_EQ(job.Comment, "");
  EXPECT_EQ(ParseTjbLine(add(kNewJob, "[Settings]\nDefaultTextSize=0.250 in")).Height, 0.25F);
  EXPECT_EQ(job.Comment, "Job created by Morvane on 3/5/2024.");
}

TEST_F(TjbFile, JobListHoldsTheWantedJob) {
  for (const char* name : {"/base/b.tjb", "/base/A.TJB", "/base/A.JOB"}) fileSystem.Put(name, "");
  std::size_t selected = 0;
  EXPECT_EQ(JobList(files, "B.TJB", selected), (std::vector<std::string>{"<NEW>", "A.TJB", "b.tjb"}));
  EXPECT_EQ(selected, 2U);
  EXPECT_EQ(JobList(files, "/x/C.TJB", selected).back(), "/x/C.TJB");
  EXPECT_EQ(selected, 3U);
}

}  // namespace
}  // namespace morvane::textjob
