#include "gcode/DrawFile.h"

#include "common/RunTimeError.h"

namespace morvane::gcode {

void Rescale(const GcodeProgram& program, const PassOptions& options, Surface& surface) {
  if (OptionsOf(options.viewer).fixedSurface) return;
  const PassState measured = GetExtents(program, options);
  if (measured.Failed) return;
  try {
    surface.view = SetScale(measured.Extents, surface.width, surface.height);
  } catch (const common::RunTimeError&) {
    // Without a message: what is drawn at the scale that stands is all there is to see.
  }
}

PassState DrawFile(const GcodeProgram& program, const PassOptions& options, platform::Canvas& canvas) {
  canvas.Clear();
  return Pass(options, &canvas).Run(program);
}

PassState GetExtents(const GcodeProgram& program, const PassOptions& options) {
  return Pass(options, nullptr).Run(program);
}

PassState ShowFile(const GcodeProgram& program, const PassOptions& options, Surface& surface,
                   platform::Canvas& canvas) {
  Rescale(program, options, surface);
  canvas.Clear();
  canvas.SetScale(surface.view);
  return Pass(options, &canvas).Run(program);
}

}  // namespace morvane::gcode
