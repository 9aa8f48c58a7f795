#include "textjob/edit/LineClipboard.h"

#include <gtest/gtest.h>

namespace morvane::test {
namespace {

using textjob::TextJob;

constexpr const char* kNew = "0,0,0,0.125,FONT1.fnt,0,0,0,0,New@@,1";

TEST(LineClipboard, WhatCanBeALine) {
  for (const char* line :
       {kNew, "4,1", "4,1,", "16,-1.5,2E1,x", "0,,,", " 4 ,1,1", "15,0,0,,,,,,,P.job@@,\xE4"}) {
    EXPECT_TRUE(textjob::IsJobLine(line)) << line;
  }
  for (const char* text : {"", "4", ",1,1", "17,0,0", "-1,0,0", "0.5,0,0", "1E99,0,0", "nan,0,0", "4;1;1",
                           "COMMENT,1", "1,5 kg of glue", "3,1,page", "line 4,1,1", "&H,1,1"}) {
    EXPECT_FALSE(textjob::IsJobLine(text)) << text;
  }
}

// Each on the lines 0 to 3, "4,N"; '+' begins what is pasted.
TEST(LineClipboard, CutCopyPasteAndDuplicate) {
  struct Case {
    const char* what;
    std::string selection, lines, selected;
  };
  const auto lines = [](const TextJob& job) {
    std::string text;
    for (const std::string& line : job.Lines) text += line.substr(2);
    return text;
  };
  const std::string text = "COMMENT,x\n\n4,7\r\n\r4,8\rno line\n4,9";
  for (const Case& c :
       {Case{"copy", "2,0", "0123", "2,0"}, Case{"copy", "", "0123", ""}, Case{"cut", "2,0", "13", "0"},
        Case{"cut", "3", "012", "2"}, Case{"cut", "3,2,1,0", "", ""}, Case{"cut", "", "0123", ""},
        Case{"paste", "2,0", "0127893", "3,4,5"}, Case{"paste", "", "0123789", "4,5,6"},
        Case{"paste", "9,x", "0123789", "4,5,6"}, Case{"duplicate", "2,0", "012023", "3,4"},
        Case{"duplicate", "", "0123", ""}}) {
    SCOPED_TRACE(c.what + (" " + c.selection));
    TextJob job{"", {"4,0", "4,1", "4,2", "4,3"}, false, c.selection};
    const std::string what = c.what;
    const std::string taken = what == "cut" ? textjob::CutLines(job) : textjob::CopyLines(job);
    EXPECT_EQ(taken.substr(0, 10), c.selection == "2,0" ? "4,0\r\n4,2\r\n" : taken.substr(0, 10));
    EXPECT_EQ(taken.empty(), c.selection.empty() || c.selection == "9,x");
    if (what == "paste") textjob::PasteLines(job, text);
    if (what == "duplicate") textjob::DuplicateLines(job);
    EXPECT_EQ(lines(job), c.lines);
    EXPECT_EQ(job.Selection, c.selected);
    EXPECT_EQ(job.Dirty, c.lines != "0123");
  }
}

}  // namespace
}  // namespace morvane::test
