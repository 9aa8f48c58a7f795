#include "textjob/preview/PreviewFiles.h"

#include <optional>

#include "common/text/Text.h"
#include "datamatrix/modDataMatrix.h"
#include "gcode/panel/modPanel.h"
#include "textjob/job/modDateCode.h"
#include "textjob/preview/PreviewGraphic.h"

namespace morvane::textjob {
namespace {

void HitPoint(PassContext& pass, const TextJobLine& line) {
  pass.pen.HitTest(line.XPos, line.YPos, line.XPos, line.YPos);
}

void DrawFile(PassContext& pass, const TextJobLine& line, const GraphicPlacement& placement,
              platform::Color color) {
  HitPoint(pass, line);
  if (line.Text.empty()) return;
  DrawGraphic(*pass.sources.files.ReadInsideAs<gcode::ParseProgram>(line.Text), placement, color, pass.pen);
}

// The pen is at the rectangle's first corner.
void DrawRectangle(PreviewPen& pen, const platform::Rectangle& box, platform::Color color) {
  pen.PenMove(box.x + box.width, box.y, color, true);
  pen.PenMove(box.x + box.width, box.y + box.height, color, true);
  pen.PenMove(box.x, box.y + box.height, color, true);
  pen.PenMove(box.x, box.y, color, true);
}

void DrawModules(PreviewPen& pen, const TextJobLine& line, const datamatrix::Symbol& symbol,
                 platform::Color color) {
  const char dark = datamatrix::DarkModule(symbol.file);
  const float spacing = datamatrix::ModuleSpacing(symbol.file);
  platform::Canvas& canvas = pen.Surface();
  for (std::size_t row = 0; row < symbol.rows.size(); ++row) {
    for (std::size_t column = 0; column < symbol.rows[row].size(); ++column) {
      if (symbol.rows[row][column] != dark) continue;
      canvas.Box({line.XPos + static_cast<float>(column) * spacing,
                  line.YPos + static_cast<float>(row) * spacing, spacing, spacing},
                 color, true);
    }
  }
}

void DrawPlaceholder(PreviewPen& pen, const TextJobLine& line, const datamatrix::DataMatrixFile& file,
                     platform::Color color) {
  const datamatrix::SymbolSize size = datamatrix::PlaceholderSize(file.Density);
  const float spacing = datamatrix::ModuleSpacing(file);
  pen.PenMove(line.XPos, line.YPos, color, false);
  DrawRectangle(pen,
                {line.XPos, line.YPos, static_cast<float>(size.columns) * spacing,
                 static_cast<float>(size.rows) * spacing},
                color);
  const bool automatic = file.Density == datamatrix::kAutomatic;
  pen.Surface().Text(line.XPos, line.YPos, line.Text + (automatic ? " (AutoSize)" : ""), color, {});
}

}  // namespace

void DrawGraphicLine(PassContext& pass, const TextJobLine& line, platform::Color color) {
  DrawFile(pass, line, {line.XPos, line.YPos, line.Compress, line.Compress, 0}, color);
}

void DrawScaledLine(PassContext& pass, const TextJobLine& line, platform::Color color) {
  DrawFile(pass, line, {line.XPos, line.YPos, line.ScaleX, line.ScaleY, line.Rotate}, color);
}

void DrawParkPathLine(PassContext& pass, const TextJobLine& line, platform::Color color) {
  DrawFile(pass, line, {}, color);
}

void DrawPanelLine(PassContext& pass, const TextJobLine& line, platform::Color color) {
  HitPoint(pass, line);
  pass.pen.PenMove(line.XPos, line.YPos, color, false);
  const auto panel = gcode::panel::ReadPanel(pass.sources.files, line.Text);
  if (panel) DrawRectangle(pass.pen, {line.XPos, line.YPos, panel->Width, panel->Height}, color);
  pass.pen.Surface().Text(line.XPos, line.YPos, line.Text, color, {});
}

void DrawDataMatrixLine(PassContext& pass, const TextJobLine& line, platform::Color color) {
  HitPoint(pass, line);
  const PreviewSources& sources = pass.sources;
  const auto expand = [&](const std::string& content) {
    return ExpandEscapes(ExpandText(content, {sources.clock, sources.locale, sources.files}),
                         sources.prompts);
  };
  const datamatrix::Symbol symbol =
      datamatrix::BuildSymbolCache(sources.runner, line.Text, expand, pass.failedSymbols);
  if (symbol.rows.empty()) {
    DrawPlaceholder(pass.pen, line, symbol.file, color);
  } else {
    DrawModules(pass.pen, line, symbol, color);
  }
}

void DrawRasterLine(PassContext& pass, const TextJobLine& line, platform::Color /*color*/) {
  HitPoint(pass, line);
  const RasterBitmap raster = BuildRasterBitmap(pass.sources.runner, line.Text, pass.failedRasters);
  if (raster.status == RasterStatus::ToolNotFound && !pass.toldToolMissing) {
    // One box is enough for a job of many rasters.
    pass.toldToolMissing = true;
    pass.sources.prompts.MsgBox("PIXBAKE.EXE not found");
  }
  if (raster.status != RasterStatus::Ready || !(line.Width > 0 && line.Height > 0)) return;
  pass.pen.Surface().Image(raster.bitmap, {line.XPos, line.YPos, line.Width, line.Height});
}

}  // namespace morvane::textjob
