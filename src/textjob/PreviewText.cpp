#include "textjob/PreviewText.h"

#include <cmath>
#include <optional>

#include "gcode/Geometry.h"

namespace morvane::textjob {
namespace {

using fonts::FontSegment;
using gcode::Point;

constexpr double kRadiansPerDegree = 3.14159265358979 / 180;

// The cell that all characters of a line share.
struct Cell {
  float width = 0;
  float height = 0;
  float advance = 0;
  float spacing = 0;
  bool wide = false;  // characters fill the cell
};

Cell CellOf(const TextDrawing& drawing) {
  const TextJobLine& line = drawing.line;
  if (drawing.proFonts && line.Width != 0) {
    return {line.Width, line.Height, line.Width + line.Spacing, line.Spacing, true};
  }
  const float width = line.Height * line.Compress;
  return {width, line.Height, width, 0, false};
}

// Where a character's cell stands, and the turn of its points: counter-clockwise on the display about a
// pivot. One matrix serves all points of the character, since they turn by the same angle.
struct Placement {
  double left = 0;
  double top = 0;
  Point pivot;
  double cosine = 1;
  double sine = 0;

  void Turn(float degrees) {
    cosine = std::cos(degrees * kRadiansPerDegree);
    sine = std::sin(degrees * kRadiansPerDegree);
  }

  auto Matrix(const Cell& cell) const {
    const double dx = left - pivot.x;
    const double dy = top - pivot.y;
    const double x = pivot.x + dx * cosine + dy * sine;
    const double y = pivot.y + dy * cosine - dx * sine;
    return [x, y, xx = cell.width * cosine, xy = cell.height * sine, yx = -cell.width * sine,
            yy = cell.height * cosine](float atX, float atY) {
      return Point{static_cast<float>(x + atX * xx + atY * xy), static_cast<float>(y + atX * yx + atY * yy)};
    };
  }
};

// One layout run: it places the character number `i`, from 0.
class Layout {
 public:
  Layout(const TextDrawing& drawing, const Cell& cell, float radius)
      : line_(drawing.line), cell_(cell), length_(drawing.text.size()), radius_(radius) {
    if (line_.Style == kArcText) {
      center_ = gcode::StepBack(line_.XPos, line_.YPos, line_.Angle, radius_);
    } else {
      center_ = {line_.XPos, line_.YPos};
    }
    straight_.top = line_.YPos;
    straight_.pivot = center_;
    if (line_.Angle != 0) straight_.Turn(line_.Angle);
    first_ = line_.XPos - Offset();
  }

  Placement Of(std::size_t i) const {
    if (line_.Style == kRegular || line_.Style == kAngular) {
      Placement placement = straight_;
      placement.left = first_ + static_cast<double>(i) * cell_.advance;
      return placement;
    }
    const double middle = cell_.advance * (static_cast<double>(length_) - 1) / 2;
    const auto along = static_cast<float>(cell_.advance * static_cast<double>(i) - middle);
    const gcode::ArcStep step = gcode::StepAroundArc(line_.Angle, radius_, along);
    Placement placement;
    placement.pivot = {step.x + center_.x, center_.y - step.y};
    placement.left = placement.pivot.x - cell_.width / 2;
    placement.top = placement.pivot.y - cell_.height;
    placement.Turn(step.tangent);
    return placement;
  }

 private:
  // From the first cell's left to the line's position. The last advance has no spacing behind it.
  double Offset() const {
    const auto length = static_cast<double>(length_);
    const double total = cell_.wide ? cell_.advance * (length - 1) + cell_.width : cell_.advance * length;
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
  std::size_t length_;
  float radius_;
  Point center_;
  Placement straight_;
  double first_ = 0;
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
      const auto& glyph = Glyph(i, forward);
      if (glyph.empty()) continue;
      const Point first = layout.Of(i).Matrix(cell_)(glyph[0].X1, glyph[0].Y1);
      return std::hypot(first.x - pen.X(), first.y - pen.Y());
    }
    return 0;
  }

  void Draw(bool forward, PreviewPen& pen) {
    const Layout layout = NextLayout();
    for (std::size_t n = 0; n < drawing_.text.size(); ++n) {
      const std::size_t i = IndexOf(n, forward);
      const auto& glyph = Glyph(i, forward);
      if (!glyph.empty()) pen.Draw(glyph, layout.Of(i).Matrix(cell_), drawing_.color);
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

  const std::vector<FontSegment>& Glyph(std::size_t i, bool forward) {
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
