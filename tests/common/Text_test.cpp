#include "common/Text.h"

#include <gtest/gtest.h>

namespace morvane::common {
namespace {

TEST(Text, CaseFollowsTheCodePage) {
  EXPECT_EQ(ToUpper("az\xE4\xF6\xFC\xF7\xFF\x9A\xDF"), "AZ\xC4\xD6\xDC\xF7\x9F\x8A\xDF");
  EXPECT_EQ(ToLower("AZ[\xC4\xD7\x9F"), "az[\xE4\xD7\xFF");
  EXPECT_TRUE(EqualIgnoringCase("M\xC4RZ", "m\xE4rz"));
  EXPECT_FALSE(EqualIgnoringCase("AB", "ABC"));
  EXPECT_TRUE(LessIgnoringCase("abC", "ABd"));
  EXPECT_TRUE(LessIgnoringCase("z", "\xE4"));
}

TEST(Text, Pads) {
  struct Case {
    const char* text;
    std::size_t width;
    const char* pad;
    const char* left;
    const char* right;
  };
  for (const Case& c : {Case{"7", 3, "0", "007", "700"}, Case{"1234", 3, "0", "1234", "1234"},
                        Case{"1", 4, "ab", "abab1", "1abab"}, Case{"1", 4, "", "1", "1"}}) {
    EXPECT_EQ(PadLeft(c.text, c.width, c.pad), c.left);
    EXPECT_EQ(PadRight(c.text, c.width, c.pad), c.right);
  }
}

TEST(Text, TrimsAndStrips) {
  EXPECT_EQ(TrimLeftControl("\t \r\nA B\x1F "), "A B\x1F ");
  EXPECT_EQ(TrimRightControl(std::string_view(" A\xA0 \0\n", 6)), " A\xA0");
  EXPECT_EQ(StripQuotes("\"a\"b\""), "a\"b");
  EXPECT_EQ(StripQuotes("\""), "");
  EXPECT_EQ(StripQuotes("a\""), "a");
  EXPECT_EQ(ReplaceAll("aaa", "aa", "a"), "aa");
  EXPECT_EQ(ReplaceAll("abc", "", "x"), "abc");
}

TEST(CodePage, EveryByteSurvivesARoundTrip) {
  std::string all;
  for (int code = 0; code < 256; ++code) all += static_cast<char>(code);
  EXPECT_EQ(FromUtf8(ToUtf8(all)), all);
  EXPECT_EQ(ToUtf8("\x80 \xE9 \x81"), "\xE2\x82\xAC \xC3\xA9 \xC2\x81");
}

TEST(CodePage, RefusesWhatItCannotExpress) {
  struct Case {
    const char* utf8;
    const char* text;
    bool wellFormed;
  };
  for (const Case& c : {Case{"\xD0\x98x", "?x", true},          // a letter of another script
                        Case{"\xF0\x9F\x98\x80x", "?x", true},  // beyond 16 bits
                        Case{"\xE9x", "?x", false}, Case{"\xC0\xAFx", "?x", false},  // too long a form
                        Case{"\xED\xA0\x80x", "?x", false},                          // half of a pair
                        Case{"\x80x", "?x", false}, Case{"x\xE2\x82", "x?", false}}) {
    EXPECT_EQ(FromUtf8(c.utf8), c.text);
    EXPECT_EQ(IsUtf8(c.utf8), c.wellFormed);
    EXPECT_FALSE(IsExpressible(c.utf8));
  }
}

}  // namespace
}  // namespace morvane::common
