#include "textjob/modDateCode.h"

#include <gtest/gtest.h>

#include "support/FakeClock.h"
#include "support/FakeFileSystem.h"
#include "support/FakeLocale.h"
#include "support/FakePrompts.h"

namespace morvane::textjob {
namespace {

class DateCode : public testing::Test {
 protected:
  DateCode() { clock.now = {2026, 3, 9, 14, 5, 7}; }

  std::string Date(const std::string& pattern) const { return ExpandDateCode(pattern, sources); }
  std::string Text(const std::string& text) const { return ExpandText(text, sources); }

  test::FakeFileSystem fileSystem{"/base"};
  common::Files files{fileSystem, "/base"};
  test::FakeClock clock;
  test::FakeLocale locale;
  ExpansionSources sources{clock, locale, files};
};

TEST_F(DateCode, Tokens) {
  const std::pair<const char*, const char*> cases[] = {{"YYYY", "2026"},
                                                       {"YR", "26"},
                                                       {"mmm", "Mar"},
                                                       {"MMM", "MAR"},
                                                       {"MM", "03"},
                                                       {"DY", "68"},
                                                       {"DJ", "068"},
                                                       {"WY", "11"},
                                                       {"HH", "2"},
                                                       {"HR", "14"},
                                                       {"MN", "05"},
                                                       {"SS", "07"},
                                                       {"YYYYY", "2026Y"},
                                                       {"Lot MMM YY", "LOT MAR 26"},
                                                       {"ADDRESS", "A09RE07"},
                                                       {"yyyy-mm-dd", "2026-03-09"},
                                                       {"Y D WW", "Y D WW"},
                                                       {"DJ+5", "073"},
                                                       {"DJ-5", "063"},
                                                       {"DJ-", "068"},
                                                       {"DJ+400", "468"},
                                                       {"DJ-103", "-035"},
                                                       {"DJ+5/DJ/DJ+55", "073/068/123"},
                                                       {"DJ/DJ+5", "068/073"},
                                                       {"DJ +5", "068 +5"},
                                                       {"", ""},
                                                       {"\xE9", "\xC9"},
                                                       {"MMMM", "MARM"},
                                                       {"DJ+99999999999999999999", "1000000000000068"}};
  for (const auto& [pattern, text] : cases) EXPECT_EQ(Date(pattern), text) << pattern;
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
  fileSystem.Put(
      "/base/SERIALS.TJB",
      "COMMENT,1,\r\n0,0,0,0,F,0,0,0,0,x@@\r\n1,0,0,0,F,0,1,0,0,A100@@,1\r\n1,0,0,0,F,0,1,0,0,B200@@,1\r\n");
  const std::pair<const char*, const char*> cases[] = {{"abc", "abc"},
                                                       {"$$DD$$/$$MM$$", "09/03"},
                                                       {"a$$$$b", "ab"},
                                                       {"a$$b", "a$$b"},
                                                       {"$$YY$$ $$YY$$ $$x", "26 26 $$x"},
                                                       {"%%SERIALS.2%%", "B200"},
                                                       {"%%serials.1%%!", "A100!"},
                                                       {"%%SERIALS.3%%", "SERIALS"},
                                                       {"%%SERIALS.x%%", "SERIALS"},
                                                       {"%%NONE.1%%", "NONE"},
                                                       {"%%12.2%%", "12"},
                                                       {"%%NOTE%%", "NOTE"},
                                                       {"%%%%", ""},
                                                       {"50%", "50%"},
                                                       {"%%a%%%%a%%", "aa"},
                                                       {"%%../etc/passwd.1%%", ""},
                                                       {"$$yyyy $$ $$%%x", "2026  $$%%x"}};
  for (const auto& [text, expanded] : cases) EXPECT_EQ(Text(text), expanded) << text;
}

// A serial number that holds its own section would grow for ever.
TEST_F(DateCode, GrowingTextStopsAtTheLimit) {
  fileSystem.Put("/base/A.TJB", "1,0,0,0,F,0,1,0,0,%%A.1%%%%A.1%%@@,\r\n");
  EXPECT_LE(Text("%%A.1%%").size(), kMaxExpandedLength);
  fileSystem.Put("/base/B.TJB", "1,0,0,0,F,0,1,0,0,x%%B.1%%@@,\r\n");
  EXPECT_LE(Text("%%B.1%%").size(), kMaxExpandedLength);
}

TEST_F(DateCode, Escapes) {
  const struct {
    const char *text, *expanded;
    bool told;
  } cases[] = {{"abc", "abc", false},
               {"\\x41\\x41\\x42", "AAB", false},
               {"\\x1e\\X41", "\x1e\\X41", false},
               {"\\x4", "\\x4", false},
               {"\\x00\\x41", "\\x00\\x41", true},
               {"\\x41\\x1A", "A\\x1A", true},
               {"\\x41\\xzz\\x42", "A\\xzz\\x42", true},
               {"\\x4G", "\x04", false},
               {"\\xFF", "\xFF", false},
               {"\\x5cx41", "A", false}};
  for (const auto& c : cases) {
    test::FakePrompts prompts;
    EXPECT_EQ(ExpandEscapes(c.text, prompts), c.expanded) << c.text;
    const std::vector<std::string> told(c.told ? 1 : 0,
                                        "Escape sequence code NULL(\\x00) and ^Z(\\x1A) are not supported.");
    EXPECT_EQ(prompts.Texts(), told) << c.text;
  }
}

}  // namespace
}  // namespace morvane::textjob
