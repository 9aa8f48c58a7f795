// A drawing surface in world coordinates, X to the right and Y down. Drawing passes write to it;
// adapters paint, write SVG, or keep the list.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

namespace morvane::platform {

// Blue x 65536 + green x 256 + red.
using Color = std::uint32_t;

// The world window: what the upper left corner shows, and how much is seen.
struct CanvasView {
  float Left = 0;
  float Top = 0;
  float Width = 1;
  float Height = 1;
};

struct Segment {
  float x1 = 0;
  float y1 = 0;
  float x2 = 0;
  float y2 = 0;
};

struct Pen {
  Color color = 0;
  int width = 1;  // pixels
  friend bool operator==(const Pen&, const Pen&) = default;
};

struct Rectangle {
  float x = 0;
  float y = 0;
  float width = 0;
  float height = 0;
};

// A face with size 0 is the surface's own small text.
struct TextFace {
  std::string face;
  float size = 0;   // world units, height of a line
  float width = 0;  // world units, average character; 0 for the face's own
  bool italic = false;
};

class Canvas {
 public:
  virtual ~Canvas() = default;
  // Drops everything drawn so far.
  virtual void Clear() = 0;
  virtual void SetScale(const CanvasView& view) = 0;
  // `count` separate lines of one pen, in drawing order.
  virtual void Lines(const Pen& pen, const Segment* segments, std::size_t count) = 0;
  // Filled: no outline, one colour. Not filled: an outline one pixel wide.
  virtual void Box(const Rectangle& box, Color color, bool filled) = 0;
  virtual void Circle(float x, float y, float radius, const Pen& pen) = 0;
  // `x`, `y` is the upper left corner of the text.
  virtual void Text(float x, float y, const std::string& text, Color color, const TextFace& face) = 0;
  // `name` is a program name (see common/Files), stretched into the place.
  virtual void Image(const std::string& name, const Rectangle& place) = 0;

  void Line(const Pen& pen, const Segment& segment) { Lines(pen, &segment, 1); }
};

}  // namespace morvane::platform
