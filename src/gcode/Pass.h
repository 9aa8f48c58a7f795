// The interpreter of a G-code job: one drawing or measuring pass of one viewer.
#pragma once

#include <array>
#include <cstdint>
#include <optional>

#include "gcode/Extents.h"
#include "gcode/GcodeProgram.h"
#include "gcode/Geometry.h"
#include "gcode/LineBatch.h"
#include "gcode/ViewerOptions.h"
#include "gcode/ViewerSettings.h"
#include "platform/Canvas.h"

namespace morvane::gcode {

// What the user chose in the viewer's window. What a viewer lacks is ignored.
struct PassOptions {
  Viewer viewer = Viewer::Graphic;
  ViewerSettings settings;
  bool showRapids = true;
  bool allTools = true;
  std::int16_t shownTool = 1;  // the one tool that is shown without `allTools`
  // Where the extents begin: the editor keeps those of its last pass when a redraw is pending.
  Extents extents;
  std::uint32_t currentLine = 0;  // 0 for none
  std::optional<Point> click;     // the move whose end lies nearest to it is looked for
  // Slow passages look thick: feeds are this wide at velocity 100 %, twice as wide at 50 %.
  std::optional<float> velocityWidth;
};

// What a pass knows after a statement.
struct PassState {
  float X = 0;
  float Y = 0;
  float Z = 0;
  std::int16_t Tool = 1;
  gcode::Extents Extents;
  std::array<bool, 8> Outputs = {};
  std::int16_t VelocityPercent = 100;
  float FeedSpeed = 0;
  float MoveSpeed = 0;
  float NearestDistance = 9999;
  std::uint32_t NearestLine = 0;
  bool Ended = false;   // an END was met; drawing goes on behind it
  bool Failed = false;  // a run-time failure ended the pass
};

class Pass {
 public:
  // Without a canvas the pass only measures. `options` must outlive the pass.
  Pass(const PassOptions& options, platform::Canvas* canvas);

  // All statements up to the end or to a failure, which ends the pass silently.
  const PassState& Run(const GcodeProgram& program);

  // One statement. Throws the run-time error that ends a pass; what was drawn before it stays. Lines
  // may be held back until Flush.
  void Step(const Statement& statement);
  void Flush() { batch_.Flush(); }

  void MoveAbsolute(float x, float y, bool feed);
  void MoveRelative(float dx, float dy, bool feed);
  void MoveArc(float x, float y, float cx, float cy, bool clockwise);

  const PassState& State() const { return state_; }

 private:
  void Move(const Statement& statement);
  void MoveTurn(const Statement& statement);
  void DrawArc(const ArcPath& path);
  void SetState(const Statement& statement);
  bool ToolShown() const;
  void SetPens();
  int FeedWidth() const;
  platform::Pen PenOf(bool feed) const;
  void Cross(float x, float y, platform::Color color);
  void MarkEnds(Point start);
  void CheckDistance(Point start);
  platform::Color MarkColor() const;

  const PassOptions& options_;
  const ViewerOptions& viewer_;
  LineBatch batch_;
  PassState state_;
  platform::Pen rapidPen_;
  platform::Pen feedPen_;
  bool toolExists_ = true;  // else a feed of it fails
  std::uint32_t line_ = 0;
  bool current_ = false;  // the statement in hand is the current line
};

}  // namespace morvane::gcode
