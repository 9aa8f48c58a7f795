// The bitmaps that stand for raster files in the preview: baked by the side tool, kept in `\Temp\`.
#pragma once

#include <map>
#include <optional>
#include <string>

#include "common/RunAndWait.h"
#include "textjob/preview/BitmapSize.h"

namespace morvane::textjob {

enum class RasterStatus {
  Ready,
  ToolNotFound,  // the caller says so: "PIXBAKE.EXE not found"
  Failed,        // silent: no such raster, or the tool failed or left no bitmap
};

struct RasterBitmap {
  RasterStatus status = RasterStatus::Failed;
  std::string bitmap;  // program name of the picture, when Ready
};

// Rasters that gave no bitmap in the pass at hand. A pass over many lines of one bad file waits for the
// tool once; the next pass starts with an empty map and tries again.
using FailedRasters = std::map<std::string, RasterStatus>;

// The bitmap of a raster file named in a document. The tool runs only when the raster is newer than its
// bitmap or when that is missing.
RasterBitmap BuildRasterBitmap(const common::ProcessRunner& runner, const std::string& name,
                               FailedRasters& failed);

// The size in pixels of a raster's bitmap; nothing when the last pass left none. Runs no tool.
std::optional<PixelSize> RasterSize(const common::Files& files, const std::string& name);

}  // namespace morvane::textjob
