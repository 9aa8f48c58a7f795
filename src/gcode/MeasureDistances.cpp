#include "gcode/MeasureDistances.h"

#include <cmath>

#include "common/RunTimeError.h"
#include "gcode/Geometry.h"
#include "gcode/MoveLine.h"

namespace morvane::gcode {
namespace {

void AddFinite(double& sum, float length) {
  if (!std::isfinite(length)) throw common::RunTimeError(common::kOverflow);
  sum += length;
}

}  // namespace

Distances MeasureDistances(const GcodeProgram& program) {
  Distances distances;
  MoveLine move;
  Point position;
  program.ForEach([&](const Statement& statement) {
    TakeStatement(statement, move);
    if (statement.word == Word::Tool) return;
    if (move.HasCenter()) {
      AddFinite(distances.feed,
                ArcLength(position.x, position.y, move.x, move.y, move.cx, move.cy, move.clockwise));
    } else {
      // A line that is no move goes to the point last read: no distance, but from behind a tool change.
      AddFinite(move.feed ? distances.feed : distances.move,
                SegmentLength(position.x, position.y, move.x, move.y));
    }
    position = {move.x, move.y};
  });
  return distances;
}

}  // namespace morvane::gcode
