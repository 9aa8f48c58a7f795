// The stateful scanner that the file formats are read with, and the splitter of simple lists.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace morvane::common {

// Four independent cursors, one for each entry, so that a scan can run inside another. A first call
// passes the text, later calls pass an empty one. A text that ends in a delimiter gives one last empty
// token with `atEnd` False, then the end.
class Tokenizer {
 public:
  std::string GetToken(std::string_view text, std::string_view delimiter, bool& atEnd);
  std::string GetToken2(std::string_view text, std::string_view delimiter, bool& atEnd);
  std::string GetToken3(std::string_view text, std::string_view delimiter, bool& atEnd);
  // Splits at any one of the characters of `delimiters`.
  std::string GetTokenAny(std::string_view text, std::string_view delimiters, bool& atEnd);

 private:
  struct Cursor {
    std::string text;
    std::size_t position = std::string::npos;  // npos: used up
  };
  static std::string Next(Cursor& cursor, std::string_view text, std::string_view delimiter, bool any,
                          bool& atEnd);
  Cursor cursors_[4];
};

// The same steps over a text that stays where it is: tokens are views into it, nothing is copied.
class TokenScan {
 public:
  explicit TokenScan(std::string_view text) : text_(text), used_(text.empty()) {}
  std::string_view Next(std::string_view delimiter, bool& atEnd);
  std::string_view Next(std::string_view delimiter);

 private:
  std::string_view text_;
  std::size_t position_ = 0;
  bool used_;
};

// Stops at the first empty token: "A,,B" yields only "A".
std::vector<std::string> SplitText(std::string_view text, std::string_view delimiter);

}  // namespace morvane::common
