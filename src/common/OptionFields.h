// The settings that the options dialog shows, as data: reading, writing and the dialog walk this table.
#pragma once

#include <span>

namespace morvane::common {

enum class OptionKind {
  Text,
  Measure,  // a length or a number in text; the label carries the unit
  List,     // one of a list of files, or nothing
  Flag,     // "1" and "0"
  Color,    // blue x 65536 + green x 256 + red in decimal
  Port      // 1 to 5: one of five buttons, their names ending in 0 to 4
};

struct OptionField {
  const char* key;  // in section `Settings`
  const char* control;
  const char* fallback;
  OptionKind kind;
  const char* label = nullptr;    // Measure: the control that names the field
  const char* caption = nullptr;  // Measure: its words in front of the unit
};

std::span<const OptionField> OptionFields();

}  // namespace morvane::common
