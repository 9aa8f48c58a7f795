#include "common/text/Text.h"

#include <gtest/gtest.h>

namespace morvane::common {
namespace {

TEST(Text, CaseFollowsTheCodePage) {
  EXPECT_EQ(ToUpper("az\xE4\xF6\xFC\xF7\xFF\x9A\xDF"), "AZ\xC4\xD6\xDC\xF7\x9F\x8A\xDF");
  EXPECT_EQ(ToLower("AZ[\xC4\xD7\x9F"), "az[\xE4\xD7\xFF");
  EXPECT_TRUE(EqualIgnoringCase("M\xC4RZ", "m\xE4rz"));
  EXPECT_FALSE(EqualIgnoringCase("AB", "ABC"));
  EXPECT_TRUE(LessIgnoringCase("abC", "ABd") && LessIgnoringCase("z", "\xE4"));
}

TEST(Text, PadsTrimsAndStrips) {
  EXPECT_EQ(PadLeft("7", 3, "0") + PadRight("7", 3, "0"), "007700");
  EXPECT_EQ(PadLeft("1234", 3, "0") + PadLeft("1", 4, ""), "12341");
  EXPECT_EQ(PadLeft("1", 4, "ab"), "abab1");
  EXPECT_EQ(TrimLeftControl("\t \r\nA B\x1F "), "A B\x1F ");
  EXPECT_EQ(TrimRightControl(std::string_view(" A\xA0 \0\n", 6)), " A\xA0");
  EXPECT_EQ(StripQuotes("\"a\"b\"") + StripQuotes("\"") + StripQuotes("a\""), "a\"ba");
  EXPECT_EQ(ReplaceAll("aaa", "aa", "a") + ReplaceAll("abc", "", "x"), "aaabc");
}

TEST(CodePage, EveryByteSurvivesARoundTrip) {
  std::string all;
  for (int code = 0; code < 256; ++code) all += static_cast<char>(code);
  EXPECT_EQ(FromUtf8(ToUtf8(all)), all);
  EXPECT_EQ(ToUtf8("\x80 \xE9 \x81"), "\xE2\x82\xAC \xC3\xA9 \xC2\x81");
}

// A letter of another script, one beyond 16 bits, then what is no UTF-8: too long a form, half of a pair.
TEST(CodePage, RefusesWhatItCannotExpress) {
  using Case = std::tuple<const char*, const char*, bool>;
  for (const auto& [utf8, text, wellFormed] :
       {Case{"\xD0\x98x", "?x", true}, Case{"\xF0\x9F\x98\x80x", "?x", true}, Case{"\xE9x", "?x", false},
        Case{"\xC0\xAFx", "?x", false}, Case{"\xED\xA0\x80x", "?x", false}, Case{"\x80x", "?x", false},
        Case{"x\xE2\x82", "x?", false}}) {
    EXPECT_EQ(FromUtf8(utf8), text);
    EXPECT_EQ(IsUtf8(utf8), wellFormed);
    EXPECT_FALSE(IsExpressible(utf8));
  }
}

}  // namespace
}  // namespace morvane::common
