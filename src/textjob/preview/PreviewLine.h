// Draws one line of a job: its reference cross, and what its type shows.
#pragma once

#include <string>
#include <string_view>

#include "datamatrix/SymbolCache.h"
#include "textjob/job/TextJobLine.h"
#include "textjob/preview/PreviewPen.h"
#include "textjob/preview/PreviewSettings.h"
#include "textjob/preview/PreviewSources.h"
#include "textjob/preview/RasterCache.h"
#include "textjob/preview/ViewOptions.h"

namespace morvane::textjob {

// What the lines of one pass share.
struct PassContext {
  const PreviewSources& sources;
  const PreviewSettings& settings;
  const ViewOptions& options;
  const recipes::Fixture* fixture = nullptr;  // null: none is shown
  PreviewPen& pen;
  datamatrix::FailedSymbols failedSymbols{};
  FailedRasters failedRasters{};
  bool toldToolMissing = false;
};

// "MOVE", "START", or the line's text.
std::string LineLabel(const TextJobLine& line);

// Draws line `index`. A file that cannot be read leaves out what it would show, never the pass.
void DrawLine(PassContext& pass, int index, const TextJobLine& line, bool selected);

}  // namespace morvane::textjob
