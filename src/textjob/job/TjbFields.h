// The fields of a job line, declared once: reader, writer, command line and tests walk this table.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <variant>

#include "textjob/job/TextJobLine.h"

namespace morvane::textjob {

using TjbMember = std::variant<std::int32_t TextJobLine::*, std::int16_t TextJobLine::*, float TextJobLine::*,
                               std::string TextJobLine::*>;

// The field as plain text, and from text: a bad number is 0, one beyond the field is held at its limit.
std::string MemberText(const TextJobLine& line, const TjbMember& member);
void SetMember(TextJobLine& line, const TjbMember& member, std::string_view text);

struct TjbField {
  std::string_view name;
  TjbMember member;
  // Place of its token in a line of the file, from 0. Depth2 shares the token of Depth.
  int place;
};

inline constexpr std::size_t kTjbFieldCount = 31;
inline constexpr int kTjbTokenCount = 30;

// In the order of the record.
extern const std::array<TjbField, kTjbFieldCount> kTjbFields;
// The same fields by their place in the file; Depth2 is left out.
extern const std::array<const TjbField*, kTjbTokenCount> kTjbTokens;

// Text and Prompt end in "@@,", so that they can hold commas; all others end in ",".
inline constexpr int kTextPlace = 9;
inline constexpr int kPromptPlace = 15;
inline constexpr int kDepthPlace = 13;  // one or two numbers

inline std::string_view TjbDelimiter(int place) {
  return place == kTextPlace || place == kPromptPlace ? "@@," : ",";
}

}  // namespace morvane::textjob
