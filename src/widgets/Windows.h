// Opens the program's windows. Forms know only this, so that windows may open each other without
// including each other.
#pragma once

#include <string>

class QWidget;

namespace morvane::widgets {

class Windows {
 public:
  virtual ~Windows() = default;
  // The frame, as the owner of modal windows.
  virtual QWidget* MainWindow() = 0;
  // A new viewer of a G-code job; `file` is a native path or a program name in core text.
  virtual void OpenGraphicViewer(const std::string& file) = 0;
  // Takes up changed settings and draws the active job anew.
  virtual void Refresh() = 0;
  // Draws the active job anew, if there is one.
  virtual void RedrawActiveJob() = 0;
  // Selects a line in the job editor, if that is open.
  virtual void SelectJobLine(int line) = 0;
};

}  // namespace morvane::widgets
