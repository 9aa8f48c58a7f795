// Text of a job line, laid out stroke by stroke on a straight line or a circle.
#pragma once

#include <string>

#include "fonts/GlyphCache.h"
#include "textjob/job/TextJobLine.h"
#include "textjob/preview/PreviewPen.h"

namespace morvane::textjob {

struct TextDrawing {
  const TextJobLine& line;
  const std::string& text;  // after substitution
  platform::Color color = 0;
  bool proFonts = false;  // clear: `Width` and `Spacing` of the line play no part
  bool showCircle = false;
  platform::Color circleColor = 0;
};

// Draws the text from whichever end starts nearer to the pen. A line whose style is in no table draws
// nothing. Throws what the characters of the font throw.
void DrawText(const TextDrawing& drawing, fonts::GlyphCache& glyphs, PreviewPen& pen);

}  // namespace morvane::textjob
