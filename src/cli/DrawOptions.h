// What the drawing commands share: where the drawing goes, how large it is, and whether it is traced.
#pragma once

#include <string>

#include "cli/Commands.h"
#include "platform/RecordingCanvas.h"
#include "textjob/preview/ViewOptions.h"

namespace morvane::cli {

struct DrawOptions {
  std::string out;  // native path; empty: no picture
  int width = 1200;
  int height = 800;
  bool trace = false;
  std::string select;
  textjob::ViewOptions view;
};

// Takes the draw options out of the arguments; the view defaults to what the settings say. Throws
// UsageError, also when neither a picture nor a trace is asked for.
DrawOptions TakeDrawOptions(Environment& environment, Arguments& arguments);

// Writes the picture and prints the trace. Throws the run-time error of a failed write.
void Deliver(Environment& environment, const DrawOptions& options, const platform::RecordingCanvas& drawing);

}  // namespace morvane::cli
