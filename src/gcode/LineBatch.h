// Collects lines of one pen, so that a canvas gets them in batches of bounded size.
#pragma once

#include <vector>

#include "platform/Canvas.h"

namespace morvane::gcode {

class LineBatch {
 public:
  // Without a canvas every line is dropped.
  explicit LineBatch(platform::Canvas* canvas) : canvas_(canvas) {}

  void Add(const platform::Pen& pen, const platform::Segment& segment) {
    if (!canvas_) return;
    if (!(pen == pen_) || segments_.size() == kLimit) Flush();
    pen_ = pen;
    segments_.push_back(segment);
  }
  void Circle(float x, float y, float radius, const platform::Pen& pen);
  // Hands over what is still held; the drawing is complete only then.
  void Flush();

 private:
  static constexpr std::size_t kLimit = 4096;
  platform::Canvas* canvas_;
  platform::Pen pen_;
  std::vector<platform::Segment> segments_;
};

}  // namespace morvane::gcode
