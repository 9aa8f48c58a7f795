#include "cli/Trace.h"

#include "cli/Json.h"

namespace morvane::cli {

void TraceCanvas::SetScale(const platform::CanvasView& view) {
  JsonLine line;
  line.Add("op", "scale").Add("left", view.Left).Add("top", view.Top);
  text_ += line.Add("width", view.Width).Add("height", view.Height).Text();
}

void TraceCanvas::Lines(const platform::Pen& pen, const platform::Segment* segments, std::size_t count) {
  for (std::size_t i = 0; i < count; ++i) {
    const platform::Segment& s = segments[i];
    JsonLine line;
    line.Add("op", "line").Add("x1", s.x1).Add("y1", s.y1).Add("x2", s.x2).Add("y2", s.y2);
    text_ += line.Add("color", std::int64_t{pen.color}).Add("width", std::int64_t{pen.width}).Text();
  }
}

void TraceCanvas::Box(const platform::Rectangle& box, platform::Color color, bool /*filled*/) {
  JsonLine line;
  line.Add("op", "box").Add("x1", box.x).Add("y1", box.y);
  line.Add("x2", box.x + box.width).Add("y2", box.y + box.height);
  text_ += line.Add("color", std::int64_t{color}).Text();
}

void TraceCanvas::Circle(float x, float y, float radius, const platform::Pen& pen) {
  JsonLine line;
  line.Add("op", "circle").Add("x", x).Add("y", y).Add("r", radius);
  text_ += line.Add("color", std::int64_t{pen.color}).Add("width", std::int64_t{pen.width}).Text();
}

void TraceCanvas::Text(float x, float y, const std::string& text, platform::Color color,
                       const platform::TextFace& /*face*/) {
  JsonLine line;
  line.Add("op", "text").Add("x", x).Add("y", y).Add("text", text);
  text_ += line.Add("color", std::int64_t{color}).Text();
}

void TraceCanvas::Image(const std::string& name, const platform::Rectangle& place) {
  JsonLine line;
  line.Add("op", "image").Add("file", name).Add("x", place.x).Add("y", place.y);
  text_ += line.Add("w", place.width).Add("h", place.height).Text();
}

}  // namespace morvane::cli
