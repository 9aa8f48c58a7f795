// The one loaded stroke font: the text of each character, and when it was loaded.
#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <set>
#include <string>
#include <vector>

namespace morvane::fonts {

inline constexpr int kFontCodes = 256;
// A character holds segments 0 to 256.
inline constexpr int kMaxSegments = 257;

// A stroke in the character's cell: X from 0 at the left to 1 at the right, Y from 0 at the top of a
// capital over 1 at the baseline to 1.5 at the bottom of a descender.
struct FontSegment {
  float X1 = 0;
  float Y1 = 0;
  float X2 = 0;
  float Y2 = 0;
};

// The lines of a font's file.
struct FontLines {
  // Line N is that of character code N; line 0 stays empty. Lines that the file lacks are not there.
  std::vector<std::string> lines;
};

struct FontTable {
  // Entry N is the line of character code N; entry 0 stays empty.
  std::array<std::string, kFontCodes> FontChars;
  // As it was given. Comparing it with a wanted name decides whether the font must be read again.
  std::string FontName;
  // Names that could not be loaded, which the user knows.
  std::set<std::string> missing;
  // Stands for what the entries hold: equal for two tables, or two moments, that hold the same.
  std::shared_ptr<const FontLines> content;
};

}  // namespace morvane::fonts
