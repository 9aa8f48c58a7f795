// The five check marks of the View menu: read once at start, written when the main window goes.
#pragma once

namespace morvane::context {

struct ViewOptions {
  bool toolPath = false;
  bool gridLines = false;
  bool referenceMarks = false;
  bool backgroundImage = false;
  bool fixture = false;
};

}  // namespace morvane::context
