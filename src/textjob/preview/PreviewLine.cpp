#include "textjob/preview/PreviewLine.h"

#include "common/RunTimeError.h"
#include "fonts/modFont.h"
#include "textjob/job/modDateCode.h"
#include "textjob/preview/PreviewFiles.h"
#include "textjob/preview/PreviewText.h"

namespace morvane::textjob {
namespace {

using Drawer = void (*)(PassContext& pass, const TextJobLine& line, platform::Color color);

void DrawCross(PassContext& pass, const TextJobLine& line, platform::Color color) {
  const float arm = pass.settings.referenceLength;
  const platform::Pen pen{color, 1};
  pass.pen.Add(pen, {line.XPos - arm, line.YPos, line.XPos + arm, line.YPos});
  pass.pen.Add(pen, {line.XPos, line.YPos - arm, line.XPos, line.YPos + arm});
}

std::string Substitute(const PreviewSources& sources, const TextJobLine& line) {
  const ExpansionSources expansion{sources.clock, sources.locale, sources.files};
  switch (line.Type) {
    case kNormal:
    case kVariable:
      return ExpandText(line.Text, expansion);
    case kDateCode:
      return ExpandDateCode(line.Text, expansion);
    default:
      return line.Text;
  }
}

void DrawTextLine(PassContext& pass, const TextJobLine& line, platform::Color color) {
  const PreviewSources& sources = pass.sources;
  const std::string text = Substitute(sources, line);
  if (sources.font.FontName != line.Font) {
    fonts::LoadFont(sources.font, line.Font, fonts::FontOrigin::Document, sources.files, sources.prompts);
  }
  DrawText({line, text, color, pass.settings.proFonts, pass.options.ReferenceMarks,
            pass.settings.colors[kReferenceColor]},
           sources.glyphs, pass.pen);
}

void DrawPoint(PassContext& pass, const TextJobLine& line, platform::Color color) {
  pass.pen.HitTest(line.XPos, line.YPos, line.XPos, line.YPos);
  pass.pen.PenMove(line.XPos, line.YPos, color, false);
}

void DrawNothing(PassContext& /*pass*/, const TextJobLine& /*line*/, platform::Color /*color*/) {}

// By line type.
constexpr Drawer kDrawers[kLineTypeCount] = {
    DrawTextLine,        // Normal
    DrawTextLine,        // Serial
    DrawGraphicLine,     // Graphic
    DrawTextLine,        // DateCode
    DrawPoint,           // Move
    DrawPanelLine,       // Panel
    DrawDataMatrixLine,  // Data Matrix
    DrawPoint,           // Fill
    DrawTextLine,        // Variable
    DrawScaledLine,      // Image
    DrawPoint,           // Cap
    DrawPoint,           // Scale
    DrawNothing,         // Start Position
    DrawScaledLine,      // Closed Path
    DrawPoint,           // Pressure
    DrawParkPathLine,    // Park Path
    DrawRasterLine,      // Raster
};

void DrawPlaced(PassContext& pass, const TextJobLine& line, bool selected) {
  const auto& colors = pass.settings.colors;
  if (line.Type != kStartPosition && (selected || pass.options.ReferenceMarks)) {
    DrawCross(pass, line, colors[selected ? kSelectedColor : kReferenceColor]);
  }
  if (line.Type < 0 || line.Type >= kLineTypeCount) return;
  try {
    kDrawers[line.Type](pass, line, colors[selected ? kSelectedColor : kDrawColor]);
  } catch (const common::RunTimeError&) {
    // A line that cannot be drawn is left out; the pass goes on with the next one.
  }
}

}  // namespace

std::string LineLabel(const TextJobLine& line) {
  switch (line.Type) {
    case kMove:
      return "MOVE";
    case kStartPosition:
      return "START";
    default:
      return line.Text;
  }
}

void DrawLine(PassContext& pass, int index, const TextJobLine& line, bool selected) {
  pass.pen.SetLine(index);
  if (!pass.fixture || pass.fixture->Type != recipes::kFixtureIndex) {
    DrawPlaced(pass, line, selected);
    return;
  }
  // Each side of the polygon has its own strip.
  TextJobLine placed = line;
  placed.YPos += static_cast<float>(line.Side - 1) * pass.fixture->Flat;
  DrawPlaced(pass, placed, selected);
}

}  // namespace morvane::textjob
