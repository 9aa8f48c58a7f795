#include "common/Tokenizer.h"

#include <gtest/gtest.h>

namespace morvane::common {
namespace {

// The tokens of a scan until it is used up, each with "!" behind it when `atEnd` was True, joined by blanks.
template <typename Next>
std::string Scan(const Next& next) {
  std::string tokens;
  for (int count = 0; count < 20; ++count) {
    bool atEnd = false;
    const std::string token(next(count == 0, atEnd));
    tokens += token + (atEnd ? "! " : " ");
    if (atEnd && token.empty()) break;
  }
  return tokens;
}

TEST(Tokenizer, Steps) {
  using Case = std::tuple<const char*, const char*, const char*>;
  for (const auto& [text, delimiter, tokens] :
       {Case{"", ",", "! "}, Case{"A", ",", "A! ! "}, Case{"A,B", ",", "A B! ! "},
        Case{"A,,B", ",", "A  B! ! "}, Case{"A,", ",", "A  ! "}, Case{",", ",", "  ! "},
        Case{"A@@B@C", "@@", "A B@C! ! "}, Case{"A,B", "", "A,B ! "}}) {
    Tokenizer tokenizer;
    TokenScan scan(text);
    EXPECT_EQ(Scan([&, t = text, d = delimiter](bool first, bool& atEnd) {
                return tokenizer.GetToken(first ? t : "", d, atEnd);
              }),
              tokens);
    EXPECT_EQ(Scan([&, d = delimiter](bool, bool& atEnd) { return scan.Next(d, atEnd); }), tokens);
  }
  Tokenizer any;
  EXPECT_EQ(
      Scan([&](bool first, bool& atEnd) { return any.GetTokenAny(first ? "A,B;C," : "", ",;", atEnd); }),
      "A B C  ! ");
}

TEST(Tokenizer, ScansNestWithoutDisturbingEachOther) {
  Tokenizer tokenizer;
  bool atEnd = false;
  std::string tokens;
  for (const bool first : {true, false}) {
    tokens += tokenizer.GetToken(first ? "1;2" : "", ";", atEnd);
    tokens += tokenizer.GetToken2(first ? "a,b" : "", ",", atEnd);
    tokens += tokenizer.GetToken3(first ? "x-y" : "", "-", atEnd);
    tokens += tokenizer.GetTokenAny(first ? "p q" : "", " ", atEnd);
  }
  EXPECT_EQ(tokens, "1axp2byq");
}

TEST(Tokenizer, SplitTextStopsAtTheFirstEmptyToken) {
  using Case = std::pair<const char*, std::vector<std::string>>;
  for (const auto& [text, tokens] : {Case{"A,B", {"A", "B"}}, Case{"A,,B", {"A"}}, Case{",A", {}}}) {
    EXPECT_EQ(SplitText(text, ","), tokens);
  }
}

}  // namespace
}  // namespace morvane::common
