#include "common/text/Tokenizer.h"

#include <algorithm>

namespace morvane::common {
namespace {

constexpr std::size_t kShortField = 8;

// What one step of a scan returns: the token's bounds, and the position behind it (npos: used up).
struct Step {
  std::size_t begin;
  std::size_t length;
  std::size_t next;
};

Step TakeStep(std::string_view text, std::size_t position, std::string_view delimiter, bool any,
              bool& atEnd) {
  const std::size_t rest = text.size() - position;
  if (delimiter.empty()) return {position, rest, std::string::npos};
  const std::size_t found = any ? text.find_first_of(delimiter, position) : text.find(delimiter, position);
  if (found == std::string_view::npos) {
    // The empty token behind a last delimiter is a token like others; only the call after it is the end.
    atEnd = rest != 0;
    return {position, rest, std::string::npos};
  }
  return {position, found - position, found + (any ? 1 : delimiter.size())};
}

}  // namespace

std::string Tokenizer::Next(Cursor& cursor, std::string_view text, std::string_view delimiter, bool any,
                            bool& atEnd) {
  atEnd = false;
  if (!text.empty()) {
    cursor.text = text;
    cursor.position = 0;
  }
  if (cursor.position == std::string::npos || cursor.text.empty()) {
    atEnd = true;
    return {};
  }
  const Step step = TakeStep(cursor.text, cursor.position, delimiter, any, atEnd);
  cursor.position = step.next;
  return cursor.text.substr(step.begin, step.length);
}

std::string Tokenizer::GetToken(std::string_view text, std::string_view delimiter, bool& atEnd) {
  return Next(cursors_[0], text, delimiter, false, atEnd);
}

std::string Tokenizer::GetToken2(std::string_view text, std::string_view delimiter, bool& atEnd) {
  return Next(cursors_[1], text, delimiter, false, atEnd);
}

std::string Tokenizer::GetToken3(std::string_view text, std::string_view delimiter, bool& atEnd) {
  return Next(cursors_[2], text, delimiter, false, atEnd);
}

std::string Tokenizer::GetTokenAny(std::string_view text, std::string_view delimiters, bool& atEnd) {
  return Next(cursors_[3], text, delimiters, true, atEnd);
}

std::string_view TokenScan::Next(std::string_view delimiter, bool& atEnd) {
  atEnd = used_;
  if (used_) return {};
  if (delimiter.size() == 1) {
    // Fields are mostly one to three characters: a plain loop is faster there than any search.
    const std::size_t stop = std::min(text_.size(), position_ + kShortField);
    for (std::size_t at = position_; at < stop; ++at) {
      if (text_[at] != delimiter[0]) continue;
      const std::string_view token = text_.substr(position_, at - position_);
      position_ = at + 1;
      return token;
    }
  }
  const Step step = TakeStep(text_, position_, delimiter, false, atEnd);
  position_ = step.next;
  used_ = step.next == std::string::npos;
  return text_.substr(step.begin, step.length);
}

std::string_view TokenScan::Next(std::string_view delimiter) {
  bool atEnd = false;
  return Next(delimiter, atEnd);
}

std::vector<std::string> SplitText(std::string_view text, std::string_view delimiter) {
  std::vector<std::string> result;
  TokenScan scan(text);
  for (bool atEnd = false; !atEnd;) {
    const std::string_view token = scan.Next(delimiter, atEnd);
    if (token.empty()) break;
    result.emplace_back(token);
  }
  return result;
}

}  // namespace morvane::common
