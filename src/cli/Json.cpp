#include "cli/Json.h"

#include <cmath>

#include "common/text/Numbers.h"
#include "common/text/Text.h"

namespace morvane::cli {
namespace {

std::string Quote(std::string_view text) {
  constexpr std::string_view kDigits = "0123456789abcdef";
  std::string out = "\"";
  for (const char c : common::ToUtf8(text)) {
    const auto code = static_cast<unsigned char>(c);
    if (c == '"' || c == '\\') {
      out += '\\';
      out += c;
    } else if (code < 0x20U || code == 0x7FU) {
      out += "\\u00";
      out += kDigits[code >> 4U];
      out += kDigits[code & 15U];
    } else {
      out += c;
    }
  }
  return out + '"';
}

}  // namespace

void JsonLine::Key(std::string_view key) {
  if (body_.size() > 1) body_ += ',';
  body_ += Quote(key) + ':';
}

JsonLine& JsonLine::Add(std::string_view key, std::string_view text) {
  Key(key);
  body_ += Quote(text);
  return *this;
}

JsonLine& JsonLine::Add(std::string_view key, float value) {
  Key(key);
  body_ += std::isfinite(value) ? common::ExactNumber(value) : "null";
  return *this;
}

JsonLine& JsonLine::Add(std::string_view key, std::int64_t value) {
  Key(key);
  body_ += std::to_string(value);
  return *this;
}

}  // namespace morvane::cli
