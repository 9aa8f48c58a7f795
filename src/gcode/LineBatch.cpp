#include "gcode/LineBatch.h"

namespace morvane::gcode {

void LineBatch::Circle(float x, float y, float radius, const platform::Pen& pen) {
  if (!canvas_) return;
  Flush();
  canvas_->Circle(x, y, radius, pen);
}

void LineBatch::Flush() {
  if (!segments_.empty()) canvas_->Lines(pen_, segments_.data(), segments_.size());
  segments_.clear();
}

}  // namespace morvane::gcode
