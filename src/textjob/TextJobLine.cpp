#include "textjob/TextJobLine.h"

#include <cstddef>

namespace morvane::textjob {
namespace {

struct TypeRow {
  std::string_view name;
  bool text;
  bool capitals;
};

constexpr TypeRow kTypes[kLineTypeCount] = {
    {"Normal", true, false},          {"Serial", true, false},      {"Graphic", false, true},
    {"DateCode", true, false},        {"Move", false, false},       {"Panel", false, true},
    {"Data Matrix", false, true},     {"Fill", false, true},        {"Variable", true, false},
    {"Image", false, true},           {"Cap", false, false},        {"Scale", false, false},
    {"Start Position", false, false}, {"Closed Path", false, true}, {"Pressure", false, false},
    {"Park Path", false, true},       {"Raster", false, true},
};

constexpr std::string_view kStyles[] = {"Regular", "ArcText", "Angular", "RadiusText"};
constexpr std::string_view kJustifications[] = {"Left", "Center", "Right"};
constexpr std::string_view kLocations[] = {"Outside", "Inside"};
constexpr std::string_view kKeepRatios[] = {"No", "Yes"};

bool IsType(std::int32_t type) {
  return type >= 0 && type < kLineTypeCount;
}

template <std::size_t N>
std::int32_t Find(const std::string_view (&words)[N], std::string_view word) {
  for (std::size_t i = 0; i < N; ++i) {
    if (words[i] == word) return static_cast<std::int32_t>(i);
  }
  return 0;
}

}  // namespace

std::string_view LineTypeName(std::int32_t type) {
  return IsType(type) ? kTypes[type].name : "";
}

std::int32_t LineTypeIndex(std::string_view word) {
  for (std::int32_t type = 0; type < kLineTypeCount; ++type) {
    if (kTypes[type].name == word) return type;
  }
  return 0;
}

std::int32_t StyleIndex(std::string_view word) {
  return Find(kStyles, word);
}
std::int32_t JustifyIndex(std::string_view word) {
  return Find(kJustifications, word);
}
std::int32_t LocationIndex(std::string_view word) {
  return Find(kLocations, word);
}
std::int32_t KeepRatioIndex(std::string_view word) {
  return Find(kKeepRatios, word);
}

bool IsTextLine(std::int32_t type) {
  return IsType(type) && kTypes[type].text;
}
bool ReadInCapitals(std::int32_t type) {
  return IsType(type) && kTypes[type].capitals;
}

}  // namespace morvane::textjob
