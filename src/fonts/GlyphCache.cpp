#include "fonts/GlyphCache.h"

#include <algorithm>

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

void GlyphCache::Turn() {
  const auto found = std::find_if(fonts_.begin(), fonts_.end(),
                                  [&](const auto& font) { return font->content == table_.content; });
  if (found != fonts_.end()) {
    shown_ = found->get();
    return;
  }
  if (fonts_.size() == kMostFonts) fonts_.erase(fonts_.begin());
  fonts_.push_back(std::make_unique<Font>());
  shown_ = fonts_.back().get();
  shown_->content = table_.content;
}

const Glyph& GlyphCache::Get(unsigned char code, bool forward, bool wide) {
  if (!shown_ || shown_->content != table_.content) Turn();
  auto& glyph = shown_->variants[(forward ? 0U : 1U) + (wide ? 2U : 0U)][code];
  if (!glyph) {
    std::vector<FontSegment> segments;
    loadFontChar(table_, code, segments, forward, wide ? 1.0F : 0.0F);
    glyph = std::make_unique<Glyph>(WayThrough(segments));
  }
  return *glyph;
}

}  // namespace morvane::fonts
