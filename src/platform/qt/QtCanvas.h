// Paints a drawing with the toolkit's painter, in device pixels.
#pragma once

#include <QColor>
#include <QLineF>
#include <QRectF>
#include <QSize>
#include <optional>
#include <vector>

#include "platform/Canvas.h"

class QPainter;

namespace morvane::platform {

class PictureStore;

class QtCanvas : public Canvas {
 public:
  struct Surface {
    QSize pixels;       // device pixels
    double ratio = 1;   // device pixels to one pixel of a pen
    QColor background;  // what Clear leaves
    // So many lines are smoothed, see SmoothLines; the rest is painted fast.
    std::size_t smoothLines = 0;
  };

  // The painter paints device pixels: it has no transformation and its device a ratio of 1.
  QtCanvas(QPainter& painter, const Surface& surface, PictureStore& pictures);
  // Shows this part of the world, whatever scale the drawing sets.
  void HoldView(const CanvasView& view);

  void Clear() override;
  void SetScale(const CanvasView& view) override;
  void Lines(const Pen& pen, const Segment* segments, std::size_t count) override;
  void Box(const Rectangle& box, Color color, bool filled) override;
  void Circle(float x, float y, float radius, const Pen& pen) override;
  void Text(float x, float y, const std::string& text, Color color, const TextFace& face) override;
  void Image(const std::string& name, const Rectangle& place) override;

 private:
  double X(double x) const { return (x - left_) * scaleX_; }
  double Y(double y) const { return (y - top_) * scaleY_; }
  QRectF Place(const Rectangle& rectangle) const;
  void UsePen(const Pen& pen);
  bool Smooth() const { return lines_ < surface_.smoothLines; }
  void CountLines(std::size_t count);
  void Sharpen(QLineF& line) const;
  void UseView(const CanvasView& view);

  QPainter& painter_;
  Surface surface_;
  PictureStore& pictures_;
  std::optional<Pen> pen_;
  std::size_t lines_ = 0;
  bool oddWidth_ = true;  // of the pen, in device pixels
  std::vector<QLineF> batch_;
  bool held_ = false;
  double left_ = 0;
  double top_ = 0;
  double scaleX_ = 1;  // pixels to a world unit
  double scaleY_ = 1;
};

// How many lines of a drawing of about `lines` to smooth: that is better to look at and several times
// slower, so a drawing of very many lines is not smoothed at all.
std::size_t SmoothLines(std::size_t lines);

QColor ToQt(Color color);

}  // namespace morvane::platform
