#include <gtest/gtest.h>

#include "common/RunTimeError.h"
#include "support/Mutator.h"
#include "textjob/modTjb.h"

namespace morvane::textjob {
namespace {

const std::string kJob =
    "COMMENT,Job created by Morvane on 11/16/2026.\r\n"
    "0,1.5,2,0.125,FONT1.fnt,0,0,0,0,SAMPLE@@,1,1,1,0.000,0,@@,0,0,0,0,0,0,0,0,0,0,0,0,0,0\r\n"
    "8,1,2,3,font2,3,4,5,6,a,b \xE9@@,7,8,9,0.5M1.5,1,Ask@@,10,11,12,1,13,14,15,16,17,0,18,19,20,21\r\n"
    "2,0,0,0,.fnt,0,0,0,0,LOGO.job@@,0.5,1,2,0.010M0.020,0,@@,&H10\r\n";

// Every line can be parsed, and what was parsed is written in a form that parses and writes the same.
void Read(const std::string& bytes) {
  TextJob job;
  try {
    ReadTjb(bytes, job);
  } catch (const common::RunTimeError&) {
    ASSERT_EQ(job.LineCount(), kMaxLines);
  }
  TextJob again;
  ReadTjb(WriteTjb(job), again);
  ASSERT_EQ(again.Lines, job.Lines);
  for (const std::string& line : job.Lines) {
    const std::string written = FormatTjbLine(ParseTjbLine(line), "0.000");
    const std::string twice = FormatTjbLine(ParseTjbLine(written), "0.000");
    ASSERT_EQ(FormatTjbLine(ParseTjbLine(twice), "0.000"), twice);
  }
}

TEST(TjbMutation, AnyBytes) {
  test::RunMutations({kJob}, Read);
}

TEST(TjbMutation, HugeLines) {
  test::RunHugeLine("", "9", Read);
  test::RunHugeLine("0,0,0,1,F,0,0,0,0,", "a,b@@,", Read);
  test::RunHugeLine("COMMENT,", "x", Read);
}

}  // namespace
}  // namespace morvane::textjob
