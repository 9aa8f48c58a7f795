// The rows of the property grid, declared once: which lines show a row, how its value reads, and how it is
// edited. Whatever builds, reads or edits rows walks this table.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

#include "textjob/job/TextJobLine.h"
#include "textjob/job/TjbFields.h"

namespace morvane::textjob {

// What a value is, and so its picture. Lengths go by the setting `UnitsFormat`.
enum class RowFormat {
  Text,    // as it stands
  File,    // without extension and in capitals
  Font,    // the same
  Word,    // of an enumeration
  Plain,   // shortest form
  Ratio,   // "0.###": factors, angles, distances of a path
  Length,  // UnitsFormat
  Count,   // "0"
  Depth,   // one length or two
  Dots,    // computed, never edited
};

// What a row waits for besides the type of the line.
enum class RowNeed { Nothing, ProFonts, Sides, Regular, Turned, Round, OnRadius };

// The list that a value is chosen from.
enum class RowChoice { Nothing, Files, GcodeFiles, Caps, Scales, Word };

struct PropertyRule {
  std::string_view label;
  TypeSet types;
  TjbMember member;
  RowFormat format = RowFormat::Ratio;
  RowNeed need = RowNeed::Nothing;
  RowChoice choice = RowChoice::Nothing;
  std::string_view extension{};  // with its point, of a row that names a file
  Words (*words)() = nullptr;    // of a row that shows a word
  bool steps = false;            // its number can be stepped
  bool blank = false;            // its list begins with an empty choice
};

// In the order of the grid.
std::span<const PropertyRule> PropertyRules();
// The first rule of that label: rules that share a label share the field and the format. Null: none.
const PropertyRule* FindRule(std::string_view label);
// The rule of the value row of a type; null for a type without one.
const PropertyRule* ValueRule(std::int32_t type);

inline constexpr std::string_view kTypeRow = "Type";
inline constexpr std::string_view kStyleRow = "Style";
inline constexpr std::string_view kWidthRow = "Width";
inline constexpr std::string_view kHeightRow = "Height";
inline constexpr std::string_view kKeepRatioRow = "Keep Ratio";
inline constexpr std::string_view kDotsWideRow = "DPI Width";
inline constexpr std::string_view kXRow = "X pos";
inline constexpr std::string_view kYRow = "Y pos";
inline constexpr std::string_view kSideRow = "Side";

}  // namespace morvane::textjob
