// The commands on G-code jobs.
#include <iostream>

#include "cli/Commands.h"
#include "cli/DrawOptions.h"
#include "cli/GlobalArguments.h"
#include "cli/Json.h"
#include "common/text/Numbers.h"
#include "gcode/DrawFile.h"
#include "gcode/MeasureDistances.h"

namespace morvane::cli {
namespace {

struct ViewerWord {
  std::string_view word;
  gcode::Viewer viewer;
};

constexpr ViewerWord kViewers[] = {
    {"graphic", gcode::Viewer::Graphic},
    {"preview", gcode::Viewer::Preview},
    {"editor", gcode::Viewer::Editor},
    {"small", gcode::Viewer::Small},
};

gcode::Viewer ReadViewer(std::string_view word) {
  for (const ViewerWord& entry : kViewers) {
    if (entry.word == word) return entry.viewer;
  }
  throw UsageError();
}

}  // namespace

int GcodeDraw(Environment& environment, const Arguments& given) {
  Arguments arguments = given;
  const DrawOptions options = TakeDrawOptions(environment, arguments);
  gcode::PassOptions pass;
  pass.viewer = ReadViewer(TakeValue(arguments, "--viewer", "graphic"));
  pass.allTools = TakeFlag(arguments, "--all-tools");
  const std::string tool = TakeValue(arguments, "--tool", "");
  if (!tool.empty() && (pass.allTools || !common::IsNumeric(tool))) throw UsageError();
  pass.allTools = tool.empty();
  if (!tool.empty()) pass.shownTool = common::ParseInt16(tool);
  Expect(arguments, 1, 1);

  const std::string text = environment.files.Read(environment.FileArgument(arguments[0]));
  const gcode::GcodeProgram program = gcode::ReadProgram(text, gcode::OptionsOf(pass.viewer).foldToCapitals);
  pass.settings = gcode::ReadViewerSettings(environment.settings.Read());
  gcode::Surface surface;
  surface.width = static_cast<float>(options.width);
  surface.height = static_cast<float>(options.height);
  platform::RecordingCanvas drawing;
  gcode::ShowFile(program, pass, surface, drawing);
  Deliver(environment, options, drawing);
  return kDone;
}

int GcodeMeasure(Environment& environment, const Arguments& arguments) {
  Expect(arguments, 1, 1);
  const std::string text = environment.files.Read(environment.FileArgument(arguments[0]));
  const gcode::GcodeProgram program = gcode::ReadProgram(text);
  const gcode::Distances distances = gcode::MeasureDistances(program);
  // The viewer that knows no tools: a tool out of range does not end its pass.
  gcode::PassOptions pass;
  pass.viewer = gcode::Viewer::Preview;
  const gcode::Extents extents = gcode::GetExtents(program, pass).Extents;
  JsonLine line;
  line.Add("move", common::ToSingle(distances.move)).Add("feed", common::ToSingle(distances.feed));
  line.Add("total", common::ToSingle(distances.move + distances.feed));
  line.Add("minX", extents.MinX)
      .Add("minY", extents.MinY)
      .Add("maxX", extents.MaxX)
      .Add("maxY", extents.MaxY);
  std::cout << line.Text();
  return kDone;
}

}  // namespace morvane::cli
