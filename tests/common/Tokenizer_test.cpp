#include "common/Tokenizer.h"

#include <gtest/gtest.h>

namespace morvane::common {
namespace {

// Tokens, each with "!" behind it when `atEnd` was True, until the scan is used up.
std::vector<std::string> Scan(std::string_view text, std::string_view delimiter, bool any) {
  Tokenizer tokenizer;
  std::vector<std::string> tokens;
  for (bool used = false; !used && tokens.size() < 20;) {
    bool atEnd = false;
    const std::string token = any ? tokenizer.GetTokenAny(tokens.empty() ? text : "", delimiter, atEnd)
                                  : tokenizer.GetToken(tokens.empty() ? text : "", delimiter, atEnd);
    used = atEnd && token.empty();
    tokens.push_back(token + (atEnd ? "!" : ""));
  }
  return tokens;
}

TEST(Tokenizer, Steps) {
  struct Case {
    std::string text;
    const char* delimiter;
    bool any;
    std::vector<std::string> tokens;
  };
  const Case cases[] = {{"", ",", false, {"!"}},
                        {"A", ",", false, {"A!", "!"}},
                        {"A,B", ",", false, {"A", "B!", "!"}},
                        {"A,,B", ",", false, {"A", "", "B!", "!"}},
                        {"A,", ",", false, {"A", "", "!"}},
                        {",", ",", false, {"", "", "!"}},
                        {"A@@B@C", "@@", false, {"A", "B@C!", "!"}},
                        {"A,B", "", false, {"A,B", "!"}},
                        {"A;B,C", ",;", true, {"A", "B", "C!", "!"}},
                        {"A,B;", ",;", true, {"A", "B", "", "!"}},
                        {"A,B", "", true, {"A,B", "!"}}};
  for (const Case& c : cases) {
    EXPECT_EQ(Scan(c.text, c.delimiter, c.any), c.tokens) << c.text;
    if (c.any) continue;
    TokenScan scan(c.text);
    for (const std::string& expected : c.tokens) {
      bool atEnd = false;
      const std::string token(scan.Next(c.delimiter, atEnd));
      EXPECT_EQ(token + (atEnd ? "!" : ""), expected) << c.text;
    }
  }
}

TEST(Tokenizer, ScansNestWithoutDisturbingEachOther) {
  Tokenizer tokenizer;
  bool atEnd = false;
  EXPECT_EQ(tokenizer.GetToken("1;2", ";", atEnd), "1");
  EXPECT_EQ(tokenizer.GetToken2("a,b", ",", atEnd), "a");
  EXPECT_EQ(tokenizer.GetToken3("x-y", "-", atEnd), "x");
  EXPECT_EQ(tokenizer.GetTokenAny("p q", " ", atEnd), "p");
  EXPECT_EQ(tokenizer.GetToken("", ";", atEnd), "2");
  EXPECT_EQ(tokenizer.GetToken2("", ",", atEnd), "b");
  EXPECT_EQ(tokenizer.GetToken3("", "-", atEnd), "y");
  EXPECT_EQ(tokenizer.GetTokenAny("", " ", atEnd), "q");
}

TEST(Tokenizer, SplitTextStopsAtTheFirstEmptyToken) {
  using Texts = std::vector<std::string>;
  EXPECT_EQ(SplitText("A B", " "), (Texts{"A", "B"}));
  EXPECT_EQ(SplitText("A,,B", ","), (Texts{"A"}));
  EXPECT_EQ(SplitText("A,", ","), (Texts{"A"}));
  EXPECT_EQ(SplitText(",A", ","), Texts{});
  EXPECT_EQ(SplitText("", ","), Texts{});
}

}  // namespace
}  // namespace morvane::common
