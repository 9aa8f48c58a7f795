#include "textjob/job/modDateCode.h"

#include <gtest/gtest.h>

#include "support/BaseStation.h"

namespace morvane::textjob {
namespace {

class DateCode : public testing::Test, public test::BaseStation {
 protected:
  DateCode() { clock.now = {2026, 3, 9, 14, 5, 7}; }

  std::string Date(const std::string& pattern) const { return ExpandDateCode(pattern, sources); }
  std::string Text(const std::string& text) const { return ExpandText(text, sources); }

  ExpansionSources sources{clock, locale, files};
};

TEST_F(DateCode, Tokens) {
  using Case = std::pair<const char*, const char*>;
  for (const auto& [pattern, text] : {Case{"YYYY", "2026"},
                                      Case{"YR", "26"},
                                      Case{"mmm", "Mar"},
                                      Case{"MMM", "MAR"},
                                      Case{"MM", "03"},
                                      Case{"DY", "68"},
                                      Case{"DJ", "068"},
                                      Case{"WY", "11"},
                                      Case{"HH", "2"},
                                      Case{"HR", "14"},
                                      Case{"MN", "05"},
                                      Case{"SS", "07"},
                                      Case{"YYYYY", "2026Y"},
                                      Case{"Lot MMM YY", "LOT MAR 26"},
                                      Case{"ADDRESS", "A09RE07"},
                                      Case{"yyyy-mm-dd", "2026-03-09"},
                                      Case{"Y D WW", "Y D WW"},
                                      Case{"DJ+5", "073"},
                                      Case{"DJ-5", "063"},
                                      Case{"DJ-", "068"},
                                      Case{"DJ+400", "468"},
                                      Case{"DJ-103", "-035"},
                                      Case{"DJ+5/DJ/DJ+55", "073/068/123"},
                                      Case{"DJ/DJ+5", "068/073"},
                                      Case{"DJ +5", "068 +5"},
                                      Case{"", ""},
                                      Case{"\xE9", "\xC9"},
                                      Case{"MMMM", "MARM"},
                                      Case{"DJ+99999999999999999999", "1000000000000068"}})
    EXPECT_EQ(Date(pattern), text) << pattern;
}

TEST_F(DateCode, DaysAndWeeksOfOddYears) {
  const std::pair<platform::DateTime, const char*> cases[] = {
      {{2009, 1, 1, 12, 0, 0}, "9 1 1 12"},       {{2024, 12, 31, 0, 0, 0}, "24 366 53 0"},
      {{2023, 12, 31, 23, 0, 0}, "23 365 53 11"}, {{2022, 1, 1, 13, 0, 0}, "22 1 1 1"},
      {{2022, 1, 2, 1, 0, 0}, "22 2 2 1"},        {{2000, 3, 1, 11, 0, 0}, "0 61 10 11"},
      {{2100, 3, 1, 1, 0, 0}, "0 60 10 1"}};
  for (const auto& [time, text] : cases) {
    clock.now = time;
    EXPECT_EQ(Date("YR DY WY HH"), text);
  }
}

TEST_F(DateCode, SectionsOfText) {
  disk.Put(
      "/base/SERIALS.TJB",
      "COMMENT,1,\r\n0,0,0,0,F,0,0,0,0,x@@\r\n1,0,0,0,F,0,1,0,0,A100@@,1\r\n1,0,0,0,F,0,1,0,0,B200@@,1\r\n");
  using Case = std::pair<const char*, const char*>;
  for (const auto& [text, expanded] :
       {Case{"abc", "abc"}, Case{"$$DD$$/$$MM$$", "09/03"}, Case{"a$$$$b", "ab"}, Case{"a$$b", "a$$b"},
        Case{"$$YY$$ $$YY$$ $$x", "26 26 $$x"}, Case{"%%SERIALS.2%%", "B200"},
        Case{"%%serials.1%%!", "A100!"}, Case{"%%SERIALS.3%%", "SERIALS"}, Case{"%%SERIALS.x%%", "SERIALS"},
        Case{"%%NONE.1%%", "NONE"}, Case{"%%12.2%%", "12"}, Case{"%%NOTE%%", "NOTE"}, Case{"%%%%", ""},
        Case{"50%", "50%"}, Case{"%%a%%%%a%%", "aa"}, Case{"%%../etc/passwd.1%%", ""},
        Case{"$$yyyy $$ $$%%x", "2026  $$%%x"}})
    EXPECT_EQ(Text(text), expanded) << text;
}

// A serial number that holds its own section would grow for ever.
TEST_F(DateCode, GrowingTextStopsAtTheLimit) {
  disk.Put("/base/A.TJB", "1,0,0,0,F,0,1,0,0,%%A.1%%%%A.1%%@@,\r\n");
  EXPECT_LE(Text("%%A.1%%").size(), kMaxExpandedLength);
  disk.Put("/base/B.TJB", "1,0,0,0,F,0,1,0,0,x%%B.1%%@@,\r\n");
  EXPECT_LE(Text("%%B.1%%").size(), kMaxExpandedLength);
}

TEST_F(DateCode, Escapes) {
  using Case = std::tuple<const char*, const char*, bool>;
  for (const auto& [text, expanded, isTold] :
       {Case{"\\x41\\x41\\x42", "AAB", false}, Case{"\\x1e\\X41", "\x1e\\X41", false},
        Case{"\\x4", "\\x4", false}, Case{"\\x00\\x41", "\\x00\\x41", true},
        Case{"\\x41\\x1A", "A\\x1A", true}, Case{"\\x41\\xzz\\x42", "A\\xzz\\x42", true},
        Case{"\\x4G", "\x04", false}, Case{"\\xFF", "\xFF", false}, Case{"\\x5cx41", "A", false}}) {
    prompts.boxes.clear();
    EXPECT_EQ(ExpandEscapes(text, prompts), expanded) << text;
    const std::vector<std::string> told(isTold ? 1 : 0,
                                        "Escape sequence code NULL(\\x00) and ^Z(\\x1A) are not supported.");
    EXPECT_EQ(prompts.Texts(), told) << text;
  }
}

}  // namespace
}  // namespace morvane::textjob
