#include "textjob/preview/PreviewGraphic.h"

#include "common/RunTimeError.h"
#include "gcode/Geometry.h"
#include "gcode/Statement.h"

namespace morvane::textjob {
namespace {

using gcode::Point;
using gcode::Statement;

constexpr float kDotRadius = 0.01F;

// Draws the statements that this reader knows: moves with X, arcs, turns and dots.
class GraphicReader {
 public:
  GraphicReader(const GraphicPlacement& placement, platform::Color color, PreviewPen& pen)
      : placement_(placement), color_(color), pen_(pen) {}

  void Draw(const Statement& statement) {
    if (statement.broken) throw common::RunTimeError(common::kSubscriptOutOfRange);
    switch (statement.word) {
      case gcode::Word::Move:
        if (statement.hasX) MoveTo(Place(statement.x, statement.y), statement.feed);
        break;
      case gcode::Word::Arc:
        Walk(gcode::ArcTo(Pen(), Place(statement.x, statement.y), Place(statement.cx, statement.cy),
                          statement.clockwise));
        break;
      case gcode::Word::Turn:
        Turn(gcode::TurnAbout(Pen(), Place(statement.cx, statement.cy), statement.x));
        break;
      case gcode::Word::Wait:
        pen_.Surface().Circle(pen_.X(), pen_.Y(), kDotRadius, {color_, pen_.LineWidth()});
        break;
      default:
        break;
    }
  }

 private:
  Point Pen() const { return {pen_.X(), pen_.Y()}; }

  Point Place(float x, float y) const {
    Point point{x * placement_.scaleX, y * placement_.scaleY};
    if (placement_.rotate != 0) point = gcode::RotateAbout(0, 0, point.x, point.y, -placement_.rotate);
    return {point.x + placement_.x, point.y + placement_.y};
  }

  void MoveTo(Point point, bool draw) { pen_.PenMove(point.x, point.y, color_, draw); }

  void Walk(const gcode::ArcPath& path) {
    gcode::WalkArc(path, [this](Point point) { MoveTo(point, true); });
  }

  void Turn(const gcode::Turn& turn) {
    Walk(turn.path);
    pen_.Put(turn.end.x, turn.end.y);
  }

  const GraphicPlacement& placement_;
  platform::Color color_;
  PreviewPen& pen_;
};

}  // namespace

void DrawGraphic(const gcode::GcodeProgram& graphic, const GraphicPlacement& placement, platform::Color color,
                 PreviewPen& pen) {
  GraphicReader reader(placement, color, pen);
  graphic.ForEach([&](const Statement& statement) { reader.Draw(statement); });
}

}  // namespace morvane::textjob
