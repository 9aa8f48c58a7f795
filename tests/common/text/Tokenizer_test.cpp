#include "common/text/Tokenizer.h"

#include <gtest/gtest.h>

namespace morvane::common {
namespace {

// The tokens of a scan until it is used up, each with a bar behind it, or "!" when `atEnd` was True.
template <typename Get>
std::string Scan(Get get, std::string_view text, std::string_view delimiter) {
  Tokenizer tokenizer;
  std::string tokens;
  for (bool used = false; !used && tokens.size() < 40; text = "") {
    bool atEnd = false;
    const std::string token = (tokenizer.*get)(text, delimiter, atEnd);
    tokens += token + (atEnd ? '!' : '|');
    used = atEnd && token.empty();
  }
  return tokens;
}

TEST(Tokenizer, Steps) {
  using Case = std::array<const char*, 3>;
  for (const auto& [text, delimiter, tokens] :
       {Case{"", ",", "!"}, Case{"A", ",", "A!!"}, Case{"A,B", ",", "A|B!!"}, Case{"A,,B", ",", "A||B!!"},
        Case{"A,", ",", "A||!"}, Case{",", ",", "||!"}, Case{"A@@B@C", "@@", "A|B@C!!"},
        Case{"A,B", "", "A,B|!"}}) {
    EXPECT_EQ(Scan(&Tokenizer::GetToken, text, delimiter), tokens) << text;
  }
  EXPECT_EQ(Scan(&Tokenizer::GetTokenAny, "A,B;C,", ",;"), "A|B|C||!");
}

TEST(Tokenizer, SplitTextStopsAtTheFirstEmptyToken) {
  using Case = std::pair<const char*, std::vector<std::string>>;
  for (const auto& [text, tokens] : {Case{"A,B", {"A", "B"}}, Case{"A,,B", {"A"}}, Case{",A", {}}}) {
    EXPECT_EQ(SplitText(text, ","), tokens);
  }
}

}  // namespace
}  // namespace morvane::common
