// The line types that show a file: graphics, panels, Data Matrix symbols, rasters.
#pragma once

#include "textjob/preview/PreviewLine.h"

namespace morvane::textjob {

// A G-code file at the line's position, scaled by `Compress`.
void DrawGraphicLine(PassContext& pass, const TextJobLine& line, platform::Color color);
// A G-code file at the line's position, scaled and turned.
void DrawScaledLine(PassContext& pass, const TextJobLine& line, platform::Color color);
// A G-code file where it stands: the line has no position.
void DrawParkPathLine(PassContext& pass, const TextJobLine& line, platform::Color color);
// The outline of a panel, and its name. A panel that cannot be read has no outline.
void DrawPanelLine(PassContext& pass, const TextJobLine& line, platform::Color color);
// A symbol module by module, or a rectangle of its size with its name.
void DrawDataMatrixLine(PassContext& pass, const TextJobLine& line, platform::Color color);
void DrawRasterLine(PassContext& pass, const TextJobLine& line, platform::Color color);

}  // namespace morvane::textjob
