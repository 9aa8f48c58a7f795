// The five check marks of the View menu. Read once at start, written when the main window unloads.
#pragma once

namespace morvane::textjob {

struct ViewOptions {
  bool ToolPath = false;
  bool GridLines = false;
  bool ReferenceMarks = false;
  bool BackgroundImage = false;
  bool Fixture = false;
};

}  // namespace morvane::textjob
