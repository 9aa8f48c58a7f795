// Writes a drawing as SVG. Text is drawn with the viewer's own sans-serif face.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "platform/Canvas.h"

namespace morvane::common {

class SvgCanvas : public platform::Canvas {
 public:
  // Bytes of a picture by its program name; empty when there are none.
  using PictureBytes = std::function<std::string(const std::string& name)>;

  // Size in pixels; `background` fills it before anything is drawn.
  SvgCanvas(int width, int height, platform::Color background, PictureBytes pictures);

  void Clear() override;
  void SetScale(const platform::CanvasView& view) override;
  void Lines(const platform::Pen& pen, const platform::Segment* segments, std::size_t count) override;
  void Box(const platform::Rectangle& box, platform::Color color, bool filled) override;
  void Circle(float x, float y, float radius, const platform::Pen& pen) override;
  void Text(float x, float y, const std::string& text, platform::Color color,
            const platform::TextFace& face) override;
  void Image(const std::string& name, const platform::Rectangle& place) override;

  // The whole document, UTF-8.
  std::string Document() const;

 private:
  void Attribute(std::string_view name, float value);
  void Stroke(const platform::Pen& pen);
  float X(float x) const { return (x - view_.Left) * scaleX_; }
  float Y(float y) const { return (y - view_.Top) * scaleY_; }

  int width_;
  int height_;
  platform::Color background_;
  PictureBytes pictures_;
  platform::CanvasView view_;
  float scaleX_ = 1;
  float scaleY_ = 1;
  std::string body_;
};

}  // namespace morvane::common
