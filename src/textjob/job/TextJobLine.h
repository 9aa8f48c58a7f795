// The record of one line of a text job, parsed on demand, and the tables of its types and words.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <span>
#include <string>
#include <string_view>

namespace morvane::textjob {

enum LineType : std::int32_t {
  kNormal = 0,
  kSerial = 1,
  kGraphic = 2,
  kDateCode = 3,
  kMove = 4,
  kPanel = 5,
  kDataMatrix = 6,
  kFill = 7,
  kVariable = 8,
  kImage = 9,
  kCap = 10,
  kScale = 11,
  kStartPosition = 12,
  kClosedPath = 13,
  kPressure = 14,
  kParkPath = 15,
  kRaster = 16,
  kLineTypeCount = 17,
};

// A set of line types. A code that is no type is in none.
class TypeSet {
 public:
  constexpr TypeSet(std::initializer_list<LineType> types) {
    for (const LineType type : types) bits_ |= 1U << type;
  }
  static constexpr TypeSet AllBut(std::initializer_list<LineType> types) {
    TypeSet set(types);
    set.bits_ = ~set.bits_;
    return set;
  }
  constexpr bool Holds(std::int32_t type) const {
    return type >= 0 && type < kLineTypeCount && ((bits_ >> type) & 1U) != 0;
  }

 private:
  std::uint32_t bits_ = 0;
};

enum TextStyle : std::int32_t { kRegular = 0, kArcText = 1, kAngular = 2, kRadiusText = 3 };
enum Justification : std::int32_t { kLeft = 0, kCenter = 1, kRight = 2 };
enum TextLocation : std::int32_t { kOutside = 0, kInside = 1 };

// Lengths in the job's working unit, angles in degrees. The order of the fields in a file is another:
// see modTjb.
struct TextJobLine {
  std::int32_t Type = 0;
  float XPos = 0;
  float YPos = 0;
  float Height = 0;    // of a character; of the image of a Raster line
  float Compress = 1;  // horizontal squeeze of text, scale of a Graphic line
  std::string Font;    // file name
  std::string Text;    // text, file or name, by type
  std::int32_t Style = 0;
  float Angle = 0;
  float Radius = 0;
  float Incr = 0;         // step of a Serial line
  std::int16_t Side = 1;  // face of an index fixture, from 1
  std::int16_t Tool = 1;  // from 1
  float Depth = 0;
  float Depth2 = 0;  // 0: there is none
  std::int32_t Justify = 0;
  std::string Prompt;  // the operator's prompt of a Variable line
  float ScaleX = 1;
  float ScaleY = 1;
  float Rotate = 0;
  std::int32_t Location = 0;
  float LateStart = 0;
  float LateEnd = 0;
  float EarlyShut = 0;
  float Overlap = 0;
  float OverlapHt = 0;
  float Width = 0;  // of the image of a Raster line; of a character with pro fonts
  std::int16_t KeepRatio = 1;
  float Margin = 0;
  float Backlash = 0;
  float Spacing = 0;  // between letters with pro fonts
};

// The words of an enumeration, by their index.
using Words = std::span<const std::string_view>;
Words LineTypeWords();
Words StyleWords();
Words JustifyWords();
Words LocationWords();
Words KeepRatioWords();
// Index of a word in its table, 0 for a word that is not in it.
std::int32_t WordIndex(Words words, std::string_view word);
// Throws "Subscript out of range" for an index beyond the table.
std::string_view WordAt(Words words, std::int32_t index);

bool IsTextLine(std::int32_t type);
// True for the types whose `Text` is read in capitals: those that name a file, but Pressure.
bool ReadInCapitals(std::int32_t type);

}  // namespace morvane::textjob
