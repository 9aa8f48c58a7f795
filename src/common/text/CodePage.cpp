#include "common/text/CodePage.h"

#include <algorithm>
#include <cstdint>
#include <iterator>

namespace morvane::common {
namespace {

// Characters of the codes 0x80 to 0x9F; all others equal their code.
constexpr char16_t kHighControls[32] = {0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                        0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
                                        0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                        0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

constexpr std::uint32_t kNoCharacter = 0xFFFFFFFF;

std::uint32_t CharacterOf(unsigned char code) {
  return code >= 0x80 && code < 0xA0 ? kHighControls[code - 0x80] : code;
}

// The code of a character, or -1 when the code page lacks it.
int CodeOf(std::uint32_t character) {
  if (character < 0x80 || (character >= 0xA0 && character < 0x100)) return static_cast<int>(character);
  const auto* found = std::find(std::begin(kHighControls), std::end(kHighControls), character);
  if (found == std::end(kHighControls)) return -1;
  return 0x80 + static_cast<int>(found - kHighControls);
}

struct SequenceForm {
  std::uint32_t leadMask;
  std::uint32_t lead;
  std::size_t length;
  std::uint32_t least;  // smaller characters have a shorter form
};
constexpr SequenceForm kSequences[] = {
    {0x80, 0x00, 1, 0}, {0xE0, 0xC0, 2, 0x80}, {0xF0, 0xE0, 3, 0x800}, {0xF8, 0xF0, 4, 0x10000}};

bool IsContinuation(char c) {
  return (static_cast<unsigned char>(c) & 0xC0) == 0x80;
}

// Takes one character from the front of a text that is not empty. Of a malformed sequence the lead and
// its continuation bytes are taken together and kNoCharacter is returned.
std::uint32_t TakeCharacter(std::string_view& utf8) {
  const auto lead = static_cast<unsigned char>(utf8.front());
  const auto* form = std::find_if(std::begin(kSequences), std::end(kSequences),
                                  [lead](const SequenceForm& f) { return (lead & f.leadMask) == f.lead; });
  if (form == std::end(kSequences)) {
    utf8.remove_prefix(1);
    return kNoCharacter;
  }
  std::uint32_t character = lead & ~form->leadMask;
  std::size_t taken = 1;
  while (taken < form->length && taken < utf8.size() && IsContinuation(utf8[taken])) {
    character = character << 6 | (static_cast<unsigned char>(utf8[taken]) & 0x3F);
    ++taken;
  }
  utf8.remove_prefix(taken);
  const bool surrogate = character >= 0xD800 && character < 0xE000;
  if (taken < form->length || character < form->least || character > 0x10FFFF || surrogate) {
    return kNoCharacter;
  }
  return character;
}

void AppendUtf8(std::string& result, std::uint32_t character) {
  const auto continuation = [character](int shift) {
    return static_cast<char>(0x80 | (character >> shift & 0x3F));
  };
  if (character < 0x80) {
    result += static_cast<char>(character);
  } else if (character < 0x800) {
    result += static_cast<char>(0xC0 | character >> 6);
    result += continuation(0);
  } else {
    result += static_cast<char>(0xE0 | character >> 12);
    result += continuation(6);
    result += continuation(0);
  }
}

}  // namespace

std::string ToUtf8(std::string_view text) {
  std::string result;
  result.reserve(text.size());
  for (char c : text) AppendUtf8(result, CharacterOf(static_cast<unsigned char>(c)));
  return result;
}

std::string FromUtf8(std::string_view utf8) {
  std::string result;
  result.reserve(utf8.size());
  while (!utf8.empty()) {
    const int code = CodeOf(TakeCharacter(utf8));
    result += code < 0 ? '?' : static_cast<char>(code);
  }
  return result;
}

bool IsUtf8(std::string_view bytes) {
  while (!bytes.empty()) {
    if (TakeCharacter(bytes) == kNoCharacter) return false;
  }
  return true;
}

bool IsExpressible(std::string_view utf8) {
  while (!utf8.empty()) {
    if (CodeOf(TakeCharacter(utf8)) < 0) return false;
  }
  return true;
}

}  // namespace morvane::common
