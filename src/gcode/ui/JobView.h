// A canvas view that shows a G-code job as one of the viewers does.
#pragma once

#include <memory>
#include <string>

#include "gcode/DrawFile.h"
#include "widgets/canvas/CanvasView.h"

namespace morvane::context {
struct AppContext;
}

namespace morvane::widgets {

class JobView : public CanvasView {
  Q_OBJECT

 public:
  explicit JobView(QWidget* parent = nullptr);
  // Before anything is shown.
  void Use(const context::AppContext& context, gcode::Viewer viewer);

  // What the user chose; takes effect with the next of the functions below.
  gcode::PassOptions& Options() { return options_; }
  gcode::Surface& Surface() { return surface_; }

  // Shows a file; `name` is a program name, and an empty one clears. A file that cannot be read shows
  // nothing, without a message.
  void OpenFile(const std::string& name);
  // The file as text, as it was read last.
  const std::string& Text() const { return *text_; }
  // Sets the scale anew and draws.
  void ShowFile();
  // Draws at the scale that stands.
  void DrawFile();

 private:
  // A job that was written anew since it was read is read again.
  void ReadFile();
  void ShowPosition(const QPointF& world);

  const context::AppContext* context_ = nullptr;
  gcode::PassOptions options_;
  gcode::Surface surface_;
  std::string name_;
  std::shared_ptr<const std::string> text_;
  std::shared_ptr<const gcode::GcodeProgram> program_;
};

}  // namespace morvane::widgets
