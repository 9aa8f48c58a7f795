#include "fonts/GlyphCache.h"

#include "fonts/modFont.h"

namespace morvane::fonts {

namespace {

Glyph WayThrough(const std::vector<FontSegment>& segments) {
  Glyph glyph;
  const FontSegment* last = nullptr;
  for (const FontSegment& segment : segments) {
    const bool joined = last && segment.X1 == last->X2 && segment.Y1 == last->Y2;
    if (!joined) glyph.push_back({segment.X1, segment.Y1, 0});
    glyph.push_back({segment.X2, segment.Y2, 1});
    last = &segment;
  }
  return glyph;
}

}  // namespace

const Glyph& GlyphCache::Get(unsigned char code, bool forward, bool wide) {
  if (version_ != table_.version) {
    for (Glyphs& glyphs : variants_) {
      for (auto& glyph : glyphs) glyph.reset();
    }
    version_ = table_.version;
  }
  auto& glyph = variants_[(forward ? 0U : 1U) + (wide ? 2U : 0U)][code];
  if (!glyph) {
    std::vector<FontSegment> segments;
    loadFontChar(table_, code, segments, forward, wide ? 1.0F : 0.0F);
    glyph = std::make_unique<Glyph>(WayThrough(segments));
  }
  return *glyph;
}

}  // namespace morvane::fonts
