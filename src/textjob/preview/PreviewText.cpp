#include "textjob/preview/PreviewText.h"

#include <cmath>

#include "gcode/Geometry.h"

namespace morvane::textjob {
namespace {

using gcode::Point;

constexpr double kRadiansPerDegree = 3.14159265358979 / 180;

// The cell that all characters of a line share.
struct Cell {
  float width = 0;
  float height = 0;
  float advance = 0;
  bool wide = false;  // characters fill the cell
};

Cell CellOf(const TextDrawing& drawing) {
  const TextJobLine& line = drawing.line;
  if (drawing.proFonts && line.Width != 0) {
    return {line.Width, line.Height, line.Width + line.Spacing, true};
  }
  const float width = line.Height * line.Compress;
  return {width, line.Height, width, false};
}

// From a point of a character's cell to one of the job. Characters turn as a whole, so one matrix serves
// all points of one.
struct CellMatrix {
  double x = 0;
  double y = 0;
  double xx = 0;
  double xy = 0;
  double yx = 0;
  double yy = 0;

  Point operator()(float atX, float atY) const {
    return {static_cast<float>(x + atX * xx + atY * xy), static_cast<float>(y + atX * yx + atY * yy)};
  }
};

// A cell whose left top corner stands at `left`, `top`, turned counter-clockwise on the display about a
// pivot.
CellMatrix Place(const Cell& cell, double left, double top, Point pivot, float degrees) {
  const double cosine = degrees == 0 ? 1 : std::cos(degrees * kRadiansPerDegree);
  const double sine = degrees == 0 ? 0 : std::sin(degrees * kRadiansPerDegree);
  const double dx = left - pivot.x;
  const double dy = top - pivot.y;
  return {pivot.x + dx * cosine + dy * sine,
          pivot.y + dy * cosine - dx * sine,
          cell.width * cosine,
          cell.height * sine,
          -cell.width * sine,
          cell.height * cosine};
}

// One layout run: it places the character number `i`, from 0.
class Layout {
 public:
  Layout(const TextDrawing& drawing, const Cell& cell, float radius)
      : line_(drawing.line), cell_(cell), length_(static_cast<double>(drawing.text.size())), radius_(radius) {
    const Point position{line_.XPos, line_.YPos};
    onCircle_ = line_.Style == kArcText || line_.Style == kRadiusText;
    center_ =
        line_.Style == kArcText ? gcode::StepBack(position.x, position.y, line_.Angle, radius_) : position;
    if (onCircle_) return;
    const double left = line_.XPos - Offset();
    first_ = Place(cell_, left, line_.YPos, position, line_.Angle);
    const CellMatrix second = Place(cell_, left + cell_.advance, line_.YPos, position, line_.Angle);
    stepX_ = second.x - first_.x;
    stepY_ = second.y - first_.y;
  }

  CellMatrix Of(std::size_t i) const {
    const auto n = static_cast<double>(i);
    if (onCircle_) return OnCircle(n);
    CellMatrix matrix = first_;
    matrix.x += n * stepX_;
    matrix.y += n * stepY_;
    return matrix;
  }

 private:
  // The middle of the character's baseline sits on the circle.
  CellMatrix OnCircle(double n) const {
    const double middle = cell_.advance * (length_ - 1) / 2;
    const auto along = static_cast<float>(cell_.advance * n - middle);
    const gcode::ArcStep step = gcode::StepAroundArc(line_.Angle, radius_, along);
    const Point point{step.x + center_.x, center_.y - step.y};
    return Place(cell_, point.x - cell_.width / 2, point.y - cell_.height, point, step.tangent);
  }

  // From the first cell's left to the line's position. The last advance has no spacing behind it.
  double Offset() const {
    const double total = cell_.wide ? cell_.advance * (length_ - 1) + cell_.width : cell_.advance * length_;
    switch (line_.Justify) {
      case kCenter:
        return total / 2;
      case kRight:
        return total;
      default:
        return 0;
    }
  }

  const TextJobLine& line_;
  const Cell& cell_;
  double length_;
  float radius_;
  bool onCircle_ = false;
  Point center_;
  CellMatrix first_;  // straight text: the first character, and the step to the next
  double stepX_ = 0;
  double stepY_ = 0;
};

class TextRun {
 public:
  TextRun(const TextDrawing& drawing, fonts::GlyphCache& glyphs)
      : drawing_(drawing), glyphs_(glyphs), cell_(CellOf(drawing)), radius_(drawing.line.Radius) {}

  // Distance from the pen to the first point of the run; 0 for a text without strokes.
  float Measure(bool forward, const PreviewPen& pen) {
    const Layout layout = NextLayout();
    for (std::size_t n = 0; n < drawing_.text.size(); ++n) {
      const std::size_t i = IndexOf(n, forward);
      const fonts::Glyph& glyph = GlyphOf(i, forward);
      if (glyph.empty()) continue;
      const Point first = layout.Of(i)(glyph[0].x, glyph[0].y);
      return std::hypot(first.x - pen.X(), first.y - pen.Y());
    }
    return 0;
  }

  void Draw(bool forward, PreviewPen& pen) {
    const Layout layout = NextLayout();
    for (std::size_t n = 0; n < drawing_.text.size(); ++n) {
      const std::size_t i = IndexOf(n, forward);
      pen.Draw(GlyphOf(i, forward), layout.Of(i), drawing_.color);
    }
  }

 private:
  // Text on the far side of its circle moves in by a third of its height, at each run once more.
  Layout NextLayout() {
    const TextJobLine& line = drawing_.line;
    if (line.Style == kRadiusText &&
        ((line.Location == kOutside && radius_ < 0) || (line.Location == kInside && radius_ > 0))) {
      radius_ -= line.Height / 3;
    }
    return Layout(drawing_, cell_, radius_);
  }

  std::size_t IndexOf(std::size_t n, bool forward) const {
    return forward ? n : drawing_.text.size() - 1 - n;
  }

  const fonts::Glyph& GlyphOf(std::size_t i, bool forward) {
    return glyphs_.Get(static_cast<unsigned char>(drawing_.text[i]), forward, cell_.wide);
  }

  const TextDrawing& drawing_;
  fonts::GlyphCache& glyphs_;
  Cell cell_;
  float radius_;
};

void DrawCircle(const TextDrawing& drawing, PreviewPen& pen) {
  if (!drawing.showCircle) return;
  const TextJobLine& line = drawing.line;
  Point center{line.XPos, line.YPos};
  if (line.Style == kArcText) center = gcode::StepBack(line.XPos, line.YPos, line.Angle, line.Radius);
  pen.Surface().Circle(center.x, center.y, std::fabs(line.Radius), {drawing.circleColor, 1});
}

}  // namespace

void DrawText(const TextDrawing& drawing, fonts::GlyphCache& glyphs, PreviewPen& pen) {
  const std::int32_t style = drawing.line.Style;
  if (style < kRegular || style > kRadiusText) return;
  if (style == kRadiusText) DrawCircle(drawing, pen);
  TextRun run(drawing, glyphs);
  const float forward = run.Measure(true, pen);
  const float backward = run.Measure(false, pen);
  run.Draw(!(backward < forward), pen);
  if (style == kArcText) DrawCircle(drawing, pen);
}

}  // namespace morvane::textjob
