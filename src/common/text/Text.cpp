#include "common/text/Text.h"

#include <algorithm>
#include <array>

namespace morvane::common {
namespace {

constexpr unsigned char Byte(char c) {
  return static_cast<unsigned char>(c);
}

struct CaseTables {
  std::array<char, 256> upper{};
  std::array<char, 256> lower{};
};

constexpr CaseTables MakeCaseTables() {
  CaseTables tables;
  for (int code = 0; code < 256; ++code) {
    tables.upper[code] = static_cast<char>(code);
    tables.lower[code] = static_cast<char>(code);
  }
  const auto pair = [&tables](int capital, int small) {
    tables.upper[small] = static_cast<char>(capital);
    tables.lower[capital] = static_cast<char>(small);
  };
  for (int code = 'A'; code <= 'Z'; ++code) pair(code, code + 32);
  for (int code = 0xC0; code <= 0xDE; ++code) {
    if (code != 0xD7) pair(code, code + 32);  // the multiplication sign has no small form
  }
  pair(0x8A, 0x9A);
  pair(0x8C, 0x9C);
  pair(0x8E, 0x9E);
  pair(0x9F, 0xFF);
  return tables;
}

constexpr CaseTables kCase = MakeCaseTables();

std::string Mapped(std::string_view text, const std::array<char, 256>& table) {
  std::string result(text);
  for (char& c : result) c = table[Byte(c)];
  return result;
}

bool IsBlankOrControl(char c) {
  return Byte(c) < 33;
}

// How many copies of a pad bring `length` to `width` or just beyond it.
std::size_t PadCount(std::size_t length, std::size_t width, std::size_t pad) {
  if (pad == 0 || length >= width) return 0;
  return (width - length + pad - 1) / pad;
}

std::string Repeated(std::string_view pad, std::size_t count) {
  std::string result;
  result.reserve(pad.size() * count);
  for (std::size_t i = 0; i < count; ++i) result += pad;
  return result;
}

}  // namespace

char UpperChar(char c) {
  return kCase.upper[Byte(c)];
}
std::string ToUpper(std::string_view text) {
  return Mapped(text, kCase.upper);
}
std::string ToLower(std::string_view text) {
  return Mapped(text, kCase.lower);
}

bool EqualIgnoringCase(std::string_view a, std::string_view b) {
  return a.size() == b.size() && std::equal(a.begin(), a.end(), b.begin(), [](char x, char y) {
           return x == y || UpperChar(x) == UpperChar(y);
         });
}

bool LessIgnoringCase(std::string_view a, std::string_view b) {
  return std::lexicographical_compare(a.begin(), a.end(), b.begin(), b.end(),
                                      [](char x, char y) { return Byte(UpperChar(x)) < Byte(UpperChar(y)); });
}

bool StartsWith(std::string_view text, std::string_view start) {
  return text.substr(0, start.size()) == start;
}

std::string StripQuotes(std::string_view text) {
  if (!text.empty() && text.front() == '"') text.remove_prefix(1);
  if (!text.empty() && text.back() == '"') text.remove_suffix(1);
  return std::string(text);
}

std::string TrimLeftControl(std::string_view text) {
  while (!text.empty() && IsBlankOrControl(text.front())) text.remove_prefix(1);
  return std::string(text);
}

std::string TrimRightControl(std::string_view text) {
  while (!text.empty() && IsBlankOrControl(text.back())) text.remove_suffix(1);
  return std::string(text);
}

std::string PadLeft(std::string_view text, std::size_t width, std::string_view pad) {
  return Repeated(pad, PadCount(text.size(), width, pad.size())).append(text);
}

std::string PadRight(std::string_view text, std::size_t width, std::string_view pad) {
  return std::string(text) + Repeated(pad, PadCount(text.size(), width, pad.size()));
}

std::string ReplaceAll(std::string_view text, std::string_view from, std::string_view to) {
  std::string result;
  std::size_t position = 0;
  while (!from.empty()) {
    const std::size_t found = text.find(from, position);
    if (found == std::string_view::npos) break;
    result.append(text, position, found - position).append(to);
    position = found + from.size();
  }
  return result.append(text, position);
}

}  // namespace morvane::common
