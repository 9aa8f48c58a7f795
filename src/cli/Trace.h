// Prints what a drawing pass draws, one JSON line for each primitive.
#pragma once

#include <string>

#include "platform/Canvas.h"

namespace morvane::cli {

class TraceCanvas : public platform::Canvas {
 public:
  void Clear() override { text_.clear(); }
  void SetScale(const platform::CanvasView& view) override;
  void Lines(const platform::Pen& pen, const platform::Segment* segments, std::size_t count) override;
  void Box(const platform::Rectangle& box, platform::Color color, bool filled) override;
  void Circle(float x, float y, float radius, const platform::Pen& pen) override;
  void Text(float x, float y, const std::string& text, platform::Color color,
            const platform::TextFace& face) override;
  void Image(const std::string& name, const platform::Rectangle& place) override;

  const std::string& Text() const { return text_; }

 private:
  std::string text_;
};

}  // namespace morvane::cli
