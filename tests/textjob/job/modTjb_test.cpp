#include "textjob/job/modTjb.h"

#include <gtest/gtest.h>

#include <sstream>

#include "common/RunTimeError.h"
#include "support/BaseStation.h"
#include "textjob/job/JobFile.h"
#include "textjob/job/TjbFields.h"

namespace morvane::textjob {
namespace {

const std::string kZeros = ",0,@@,0,0,0,0,0,0,0,0,0,0,0,0,0,0";

// Every field with its name, in the order of the record.
std::string Show(const TextJobLine& line) {
  std::ostringstream out;
  for (const TjbField& field : kTjbFields) {
    out << field.name << '=';
    std::visit([&](auto member) { out << line.*member << ' '; }, field.member);
  }
  return out.str();
}

TEST(Tjb, ParsesALineInTheFilesOrder) {
  const char* const line =
      "9,1,2,3,font1.fnt,3,4,5,6,a,b@@,7,8,9,.5M1.5,1,Ask, please@@,10,11,12,1,13,14,15,16,17,0,18,19,20,21";
  EXPECT_EQ(
      Show(ParseTjbLine(line)),
      "Type=9 XPos=1 YPos=2 Height=3 Compress=7 Font=FONT1.FNT Text=A,B Style=3 Angle=5 Radius=6 Incr=4 "
      "Side=8 Tool=9 Depth=0.5 Depth2=1.5 Justify=1 Prompt=Ask, please ScaleX=10 ScaleY=11 Rotate=12 "
      "Location=1 "
      "LateStart=13 LateEnd=14 EarlyShut=15 Overlap=16 OverlapHt=17 Width=18 KeepRatio=0 Margin=19 "
      "Backlash=20 Spacing=21 ");
}

TEST(Tjb, TextOfOddLines) {
  using Case = std::tuple<const char*, const char*, float>;
  for (const auto& [line, text, compress] :
       {Case{"0,0,0,1,FONT1.fnt,0,0,0,0,A,B,C@@,1", "A,B,C", 1.F},
        Case{"0,0,0,1,F,0,0,0,0,A@@,2@@,B@@,3", "A", 2.F},
        Case{"0,0,0,1,F,0,0,0,0,rest, of it", "rest, of it", 1.F},
        Case{"0,0,0,1,F,0,0,0,0,ends@@", "ends@@", 1.F},
        Case{"14,0,0,0,.fnt,0,0,0,0,low.pre@@,1", "low.pre", 1.F},
        Case{"16,0,0,0,.fnt,0,0,0,0,\xE9t\xE9.ras@@,.5", "\xC9T\xC9.RAS", .5F},
        Case{"0,0,0,0,.fnt,0,0,0,0,\xE9\x80\xFF@@,-2", "\xE9\x80\xFF", -2.F}}) {
    EXPECT_EQ(ParseTjbLine(line).Text, text) << line;
    EXPECT_EQ(ParseTjbLine(line).Compress, compress) << line;
  }
}

TEST(Tjb, CorrectionsAndBadNumbers) {
  const std::string zeros = Show(ParseTjbLine("0,0,0,0,.fnt,0,0,0,0,@@,0,0,0,0.000M0.000" + kZeros));
  EXPECT_NE(zeros.find("Compress=1 "), std::string::npos);
  EXPECT_NE(zeros.find("Side=1 Tool=1 Depth=0 Depth2=0 Justify=0 Prompt= ScaleX=0 "), std::string::npos);
  EXPECT_NE(zeros.find("KeepRatio=0 "), std::string::npos);
  const std::string odd =
      Show(ParseTjbLine("2.5,1e308,nan,&H10,f,1e99,x,-1e308,.5.5,t@@,,99999,-99999,M.5M7"));
  EXPECT_EQ(
      odd.substr(0, odd.find("Justify")),
      "Type=2 XPos=3.40282e+38 YPos=0 Height=16 Compress=1 Font=F Text=T Style=2147483647 Angle=-3.40282e+38 "
      "Radius=0.5 Incr=0 Side=32767 Tool=-32768 Depth=0 Depth2=0.5 ");
}

TEST(TjbWords, StandUnderTheirNumbers) {
  using Case = std::pair<Words, std::vector<std::string_view>>;
  for (const auto& [table, words] :
       {Case{LineTypeWords(),
             {"Normal", "Serial", "Graphic", "DateCode", "Move", "Panel", "Data Matrix", "Fill", "Variable",
              "Image", "Cap", "Scale", "Start Position", "Closed Path", "Pressure", "Park Path", "Raster"}},
        Case{StyleWords(), {"Regular", "ArcText", "Angular", "RadiusText"}},
        Case{JustifyWords(), {"Left", "Center", "Right"}}, Case{LocationWords(), {"Outside", "Inside"}},
        Case{KeepRatioWords(), {"No", "Yes"}}}) {
    EXPECT_EQ(std::vector<std::string_view>(table.begin(), table.end()), words);
    EXPECT_EQ(WordIndex(table, words.back()), static_cast<std::int32_t>(words.size()) - 1);
    EXPECT_EQ(WordIndex(table, "none"), 0);
  }
}

// The font token comes in many spellings and is written in one; numbers keep seven digits.
TEST(Tjb, Rewrite) {
  const struct {
    const char* from;
    std::string to;
  } cases[] = {
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

class TjbFile : public testing::Test, public test::BaseStation {
 protected:
  TextJob job;
};

TEST_F(TjbFile, RoundTrip) {
  const std::string bytes = "COMMENT,A, b \xE9\r\n0,0,0,1,F,0,0,0,0,x@@\r\n4\r\ncomment,no\r\n";
  disk.Put("/base/A.TJB", "COMMENT,first\n\n0,0,0,1,F,0,0,0,0,x@@\r4\nCOMMENT,A, b \xE9\r\n\r\ncomment,no");
  ASSERT_TRUE(LoadTjbFile(job, "a.tjb", files, prompts));
  job.Dirty = true;
  ASSERT_TRUE(SaveTjbFile(job, "B.TJB", files, prompts));
  EXPECT_FALSE(job.Dirty);
  EXPECT_EQ(disk.Get("/base/B.TJB"), bytes);
}

TEST_F(TjbFile, OneLineTooMany) {
  std::string bytes;
  for (std::size_t i = 0; i < kMaxLines; ++i) bytes += "4\r\n\r\n";
  ReadTjb(bytes, job);
  EXPECT_EQ(job.LineCount(), kMaxLines);
  disk.Put("/base/BIG.TJB", bytes + "12\r\nCOMMENT,too late\r\n");
  EXPECT_FALSE(LoadTjbFile(job, "BIG.TJB", files, prompts));
  EXPECT_EQ(prompts.Texts(), std::vector<std::string>{"Load(BIG.TJB) Subscript out of range"});
  EXPECT_EQ(job.LineCount(), kMaxLines);
  EXPECT_EQ(job.Comment, "");
  EXPECT_THROW(ParseTjbLine(job, kMaxLines), common::RunTimeError);
}

TEST_F(TjbFile, FailuresAreToldAndTheOldFileStays) {
  EXPECT_FALSE(LoadTjbFile(job, "NONE.TJB", files, prompts));
  disk.Put("/base/A.TJB", "old");
  disk.faults.bytesLeft = 3;
  job.Dirty = true;
  EXPECT_FALSE(SaveTjbFile(job, "A.TJB", files, prompts));
  disk.faults = {};
  disk.SetWritable("/base/A.TJB", false);
  EXPECT_FALSE(SaveTjbFile(job, "A.TJB", files, prompts));
  EXPECT_EQ(prompts.Texts(),
            (std::vector<std::string>{"Load(NONE.TJB) File not found", "Save(A.TJB) Disk full",
                                      "Save(A.TJB) Permission denied"}));
  EXPECT_TRUE(job.Dirty);
  EXPECT_EQ(disk.Get("/base/A.TJB"), "old");
}

TEST_F(TjbFile, NewJobKeepsTheComment) {
  job.Comment = "mine";
  job.Lines = {"4"};
  EXPECT_TRUE(LoadTjbFile(job, kNewJob, files, prompts));
  EXPECT_EQ(job.Comment, "mine");
  EXPECT_EQ(job.LineCount(), 0U);
}

TEST_F(TjbFile, NewLine) {
  const auto add = [&](const char* name, const char* ini) {
    return NewJobLine(job, name, common::SettingsSnapshot(ini), clock, locale);
  };
  EXPECT_EQ(add("A.TJB", ""), "0,0,0,0.125,FONT1.fnt,0,0,0,0,New@@,1");
  EXPECT_EQ(job.Comment, "");
  EXPECT_EQ(ParseTjbLine(add(kNewJob, "[Settings]\nDefaultTextSize=0.250 in")).Height, 0.25F);
  EXPECT_EQ(job.Comment, "Job created by Morvane on 3/5/2024.");
}

TEST_F(TjbFile, JobListHoldsTheWantedJob) {
  for (const char* name : {"/base/b.tjb", "/base/A.TJB", "/base/A.JOB"}) disk.Put(name, "");
  std::size_t selected = 0;
  EXPECT_EQ(JobList(files, "B.TJB", selected), (std::vector<std::string>{"<NEW>", "A.TJB", "b.tjb"}));
  EXPECT_EQ(selected, 2U);
  EXPECT_EQ(JobList(files, "/x/C.TJB", selected).back(), "/x/C.TJB");
  EXPECT_EQ(selected, 3U);
}

}  // namespace
}  // namespace morvane::textjob
