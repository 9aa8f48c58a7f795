#include "fonts/GlyphCache.h"

#include "fonts/modFont.h"

namespace morvane::fonts {

const std::vector<FontSegment>& GlyphCache::Get(unsigned char code, bool forward, bool wide) {
  if (version_ != table_.version) {
    for (Glyphs& glyphs : variants_) {
      for (auto& glyph : glyphs) glyph.reset();
    }
    version_ = table_.version;
  }
  auto& glyph = variants_[(forward ? 0U : 1U) + (wide ? 2U : 0U)][code];
  if (!glyph) {
    auto segments = std::make_unique<std::vector<FontSegment>>();
    loadFontChar(table_, code, *segments, forward, wide ? 1.0F : 0.0F);
    glyph = std::move(segments);
  }
  return *glyph;
}

}  // namespace morvane::fonts
