#include "textjob/preview/RasterCache.h"

#include "common/RunTimeError.h"
#include "common/files/ScratchName.h"
#include "textjob/preview/BitmapSize.h"

namespace morvane::textjob {
namespace {

constexpr std::string_view kTool = "PIXBAKE.EXE";

// Throws when the tool left no file.
RasterStatus Bake(const common::ProcessRunner& runner, const std::string& name, const std::string& bitmap) {
  runner.files.EnsureTemp();
  const int exitCode = runner.RunAndWait(kTool, {"/R", ".\\" + name, "." + bitmap});
  if (exitCode == common::kCannotStart) return RasterStatus::ToolNotFound;
  if (exitCode == 0 && *runner.files.ReadAs<BitmapSize>(bitmap)) return RasterStatus::Ready;
  // Half a bitmap would be newer than its raster and pass for a good one in the next pass.
  runner.files.RemoveQuietly(bitmap);
  return RasterStatus::Failed;
}

RasterStatus Refresh(const common::ProcessRunner& runner, const std::string& name,
                     const std::string& bitmap) {
  const common::Files& files = runner.files;
  try {
    const std::int64_t changed = files.ModifiedTime(files.ResolveInside(name));
    if (files.FileExists(bitmap) && changed <= files.ModifiedTime(bitmap)) return RasterStatus::Ready;
    return Bake(runner, name, bitmap);
  } catch (const common::RunTimeError&) {
    return RasterStatus::Failed;
  }
}

}  // namespace

RasterBitmap BuildRasterBitmap(const common::ProcessRunner& runner, const std::string& name,
                               FailedRasters& failed) {
  const auto known = failed.find(name);
  if (known != failed.end()) return {known->second, {}};
  const std::string bitmap = common::ScratchName(name, ".BMP");
  const RasterStatus status = Refresh(runner, name, bitmap);
  if (status == RasterStatus::Ready) return {status, bitmap};
  failed.emplace(name, status);
  return {status, {}};
}

std::optional<PixelSize> RasterSize(const common::Files& files, const std::string& name) try {
  return *files.ReadAs<BitmapSize>(common::ScratchName(name, ".BMP"));
} catch (const common::RunTimeError&) {
  return std::nullopt;
}

}  // namespace morvane::textjob
