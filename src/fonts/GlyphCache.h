// Characters read once for each loaded font: the preview asks for the same few again and again.
#pragma once

#include <array>
#include <memory>
#include <vector>

#include "fonts/FontTable.h"

namespace morvane::fonts {

class GlyphCache {
 public:
  explicit GlyphCache(const FontTable& table) : table_(table) {}

  // As loadFontChar returns them, and with its errors. Valid until the font table changes.
  const std::vector<FontSegment>& Get(unsigned char code, bool forward, bool wide);

 private:
  using Glyphs = std::array<std::unique_ptr<std::vector<FontSegment>>, kFontCodes>;

  const FontTable& table_;
  std::uint64_t version_ = 0;
  std::array<Glyphs, 4> variants_;  // by direction and width mode
};

}  // namespace morvane::fonts
