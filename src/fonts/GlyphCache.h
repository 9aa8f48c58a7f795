// Characters read once for each font: the preview asks for the same few again and again.
#pragma once

#include <array>
#include <memory>
#include <vector>

#include "fonts/FontTable.h"

namespace morvane::fonts {

// A stop on the tool's way through a character, in its cell. Strokes that do not begin where the last one
// ended are reached with the pen up.
struct GlyphPoint {
  float x = 0;
  float y = 0;
  std::uint32_t down = 0;  // 1: a stroke ends here; 0: the pen is set down here
};

using Glyph = std::vector<GlyphPoint>;

class GlyphCache {
 public:
  explicit GlyphCache(const FontTable& table) : table_(table) {}

  // The way through the strokes that loadFontChar returns, and with its errors. Valid until the font table
  // changes.
  const Glyph& Get(unsigned char code, bool forward, bool wide);

 private:
  // Jobs of several fonts change between them from line to line.
  static constexpr std::size_t kMostFonts = 8;

  using Glyphs = std::array<std::unique_ptr<Glyph>, kFontCodes>;
  struct Font {
    std::shared_ptr<const FontLines> content;
    std::array<Glyphs, 4> variants;  // by direction and width mode
  };

  // To the font that the table holds now.
  void Turn();

  const FontTable& table_;
  std::vector<std::unique_ptr<Font>> fonts_;  // newest last
  Font* shown_ = nullptr;
};

}  // namespace morvane::fonts
