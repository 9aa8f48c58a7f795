#include "textjob/job/TextJobLine.h"

#include <cstddef>

#include "common/RunTimeError.h"

namespace morvane::textjob {
namespace {

constexpr std::string_view kTypes[kLineTypeCount] = {
    "Normal",         "Serial",      "Graphic",  "DateCode",  "Move",   "Panel",
    "Data Matrix",    "Fill",        "Variable", "Image",     "Cap",    "Scale",
    "Start Position", "Closed Path", "Pressure", "Park Path", "Raster",
};

constexpr std::string_view kStyles[] = {"Regular", "ArcText", "Angular", "RadiusText"};
constexpr std::string_view kJustifications[] = {"Left", "Center", "Right"};
constexpr std::string_view kLocations[] = {"Outside", "Inside"};
constexpr std::string_view kKeepRatios[] = {"No", "Yes"};

}  // namespace

Words LineTypeWords() {
  return kTypes;
}
Words StyleWords() {
  return kStyles;
}
Words JustifyWords() {
  return kJustifications;
}
Words LocationWords() {
  return kLocations;
}
Words KeepRatioWords() {
  return kKeepRatios;
}

std::int32_t WordIndex(Words words, std::string_view word) {
  for (std::size_t i = 0; i < words.size(); ++i) {
    if (words[i] == word) return static_cast<std::int32_t>(i);
  }
  return 0;
}

std::string_view WordAt(Words words, std::int32_t index) {
  if (index < 0 || static_cast<std::size_t>(index) >= words.size()) {
    throw common::RunTimeError(common::kSubscriptOutOfRange);
  }
  return words[static_cast<std::size_t>(index)];
}

bool IsTextLine(std::int32_t type) {
  return TypeSet{kNormal, kSerial, kDateCode, kVariable}.Holds(type);
}
bool ReadInCapitals(std::int32_t type) {
  return TypeSet{kGraphic, kPanel, kDataMatrix, kFill, kImage, kClosedPath, kParkPath, kRaster}.Holds(type);
}

}  // namespace morvane::textjob
