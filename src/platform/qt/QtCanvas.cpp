#include "platform/qt/QtCanvas.h"

#include <QFontMetricsF>
#include <QPainter>
#include <cmath>
#include <numbers>

#include "platform/qt/LineClip.h"
#include "platform/qt/PictureStore.h"
#include "platform/qt/QtText.h"

namespace morvane::platform {
namespace {

constexpr std::size_t kBatch = 4096;         // lines handed to the painter at once
constexpr std::size_t kMostSmooth = 30000;   // lines
constexpr double kSmallText = 12;            // pixels, the surface's own text
constexpr double kMaxText = 4000;            // pixels
constexpr double kMaxEllipse = 8000;         // pixels; larger circles are drawn as lines
constexpr int kCircleSteps = 1440;           // of such a circle
constexpr double kDegenerateScale = 1e-300;  // a view of no size

bool Inside(double value) {
  return value >= -kPainterLimit && value <= kPainterLimit;
}

}  // namespace

std::size_t SmoothLines(std::size_t lines) {
  return lines <= kMostSmooth ? kMostSmooth : 0;
}

QColor ToQt(Color color) {
  return QColor::fromRgb(color & 255, color >> 8 & 255, color >> 16 & 255);
}

QtCanvas::QtCanvas(QPainter& painter, const Surface& surface, PictureStore& pictures)
    : painter_(painter), surface_(surface), pictures_(pictures) {
  painter_.setRenderHint(QPainter::SmoothPixmapTransform);
  painter_.setRenderHint(QPainter::Antialiasing, surface.smoothLines > 0);
  UseView({});
}

void QtCanvas::UseView(const CanvasView& view) {
  left_ = view.Left;
  top_ = view.Top;
  scaleX_ = surface_.pixels.width() / std::max<double>(view.Width, kDegenerateScale);
  scaleY_ = surface_.pixels.height() / std::max<double>(view.Height, kDegenerateScale);
}

void QtCanvas::HoldView(const CanvasView& view) {
  UseView(view);
  held_ = true;
}

void QtCanvas::SetScale(const CanvasView& view) {
  if (!held_) UseView(view);
}

void QtCanvas::Clear() {
  painter_.fillRect(QRect(QPoint(), surface_.pixels), surface_.background);
}

void QtCanvas::UsePen(const Pen& pen) {
  if (pen_ == pen) return;
  pen_ = pen;
  const double width = std::max(pen.width, 1) * surface_.ratio;
  oddWidth_ = std::lround(width) % 2 == 1;
  QPen wanted(ToQt(pen.color), width);
  if (Smooth()) wanted.setCapStyle(Qt::RoundCap);
  painter_.setPen(wanted);
  painter_.setBrush(Qt::NoBrush);
}

// A drawing of many lines is a texture, and has to be fast.
void QtCanvas::CountLines(std::size_t count) {
  const bool smooth = Smooth();
  lines_ += count;
  if (smooth == Smooth()) return;
  painter_.setRenderHint(QPainter::Antialiasing, false);
  pen_.reset();
}

// Smoothing would spread a level or upright line over one pixel too many, at half its colour.
void QtCanvas::Sharpen(QLineF& line) const {
  const auto center = [this](double value) {
    return oddWidth_ ? std::floor(value) + 0.5 : std::round(value);
  };
  if (line.y1() == line.y2()) {
    const double y = center(line.y1());
    line.setLine(line.x1(), y, line.x2(), y);
  } else if (line.x1() == line.x2()) {
    const double x = center(line.x1());
    line.setLine(x, line.y1(), x, line.y2());
  }
}

void QtCanvas::Lines(const Pen& pen, const Segment* segments, std::size_t count) {
  CountLines(count);
  UsePen(pen);
  batch_.clear();
  batch_.reserve(std::min(count, kBatch));
  for (std::size_t i = 0; i < count; ++i) {
    const Segment& segment = segments[i];
    QLineF line(X(segment.x1), Y(segment.y1), X(segment.x2), Y(segment.y2));
    const bool inside = Inside(line.x1()) && Inside(line.y1()) && Inside(line.x2()) && Inside(line.y2());
    if (!inside && !ClipLine(line)) continue;
    if (Smooth()) Sharpen(line);
    batch_.push_back(line);
    if (batch_.size() < kBatch) continue;
    painter_.drawLines(batch_.data(), static_cast<int>(batch_.size()));
    batch_.clear();
  }
  if (!batch_.empty()) painter_.drawLines(batch_.data(), static_cast<int>(batch_.size()));
}

QRectF QtCanvas::Place(const Rectangle& rectangle) const {
  return QRectF(QPointF(X(rectangle.x), Y(rectangle.y)),
                QPointF(X(double{rectangle.x} + rectangle.width), Y(double{rectangle.y} + rectangle.height)))
      .normalized();
}

void QtCanvas::Box(const Rectangle& box, Color color, bool filled) {
  if (!filled) {
    const float right = box.x + box.width;
    const float bottom = box.y + box.height;
    const Segment sides[] = {{box.x, box.y, right, box.y},
                             {right, box.y, right, bottom},
                             {right, bottom, box.x, bottom},
                             {box.x, bottom, box.x, box.y}};
    Lines({color, 1}, sides, std::size(sides));
    return;
  }
  // Edges on whole pixels, so that boxes side by side leave no seam.
  const QRectF place = Place(box) & QRectF(QPointF(), QSizeF(surface_.pixels));
  if (!place.isValid()) return;
  const QPoint first(qRound(place.left()), qRound(place.top()));
  const QPoint behind(qRound(place.right()), qRound(place.bottom()));
  painter_.fillRect(first.x(), first.y(), std::max(behind.x() - first.x(), 1),
                    std::max(behind.y() - first.y(), 1), ToQt(color));
}

void QtCanvas::Circle(float x, float y, float radius, const Pen& pen) {
  const double rx = std::abs(radius * scaleX_);
  const double ry = std::abs(radius * scaleY_);
  if (rx < kMaxEllipse && ry < kMaxEllipse) {
    if (!Inside(X(x)) || !Inside(Y(y))) return;
    UsePen(pen);
    painter_.drawEllipse(QPointF(X(x), Y(y)), rx, ry);
    return;
  }
  std::vector<Segment> steps;
  steps.reserve(kCircleSteps);
  Segment step{x + radius, y, 0, 0};
  for (int i = 1; i <= kCircleSteps; ++i) {
    const double angle = 2 * std::numbers::pi * i / kCircleSteps;
    step.x2 = static_cast<float>(x + std::cos(angle) * radius);
    step.y2 = static_cast<float>(y + std::sin(angle) * radius);
    steps.push_back(step);
    step = {step.x2, step.y2, 0, 0};
  }
  Lines(pen, steps.data(), steps.size());
}

void QtCanvas::Text(float x, float y, const std::string& text, Color color, const TextFace& face) {
  if (!Inside(X(x)) || !Inside(Y(y))) return;
  QFont font = painter_.font();
  if (!face.face.empty()) font.setFamily(ToQt(face.face));
  font.setItalic(face.italic);
  const double pixels = face.size > 0 ? face.size * scaleY_ : kSmallText * surface_.ratio;
  font.setPixelSize(static_cast<int>(std::clamp(std::round(pixels), 1.0, kMaxText)));
  if (face.width > 0) {
    const double own = QFontMetricsF(font).averageCharWidth();
    constexpr int kMaxStretch = 4000;  // percent, the toolkit's limit
    if (own > 0) font.setStretch(std::clamp(qRound(face.width * scaleX_ / own * 100), 1, kMaxStretch));
  }
  painter_.save();
  painter_.setFont(font);
  painter_.setPen(ToQt(color));
  painter_.drawText(QPointF(X(x), Y(y) + QFontMetricsF(font).ascent()), ToQt(text));
  painter_.restore();
}

void QtCanvas::Image(const std::string& name, const Rectangle& place) {
  const QImage image = pictures_.Get(name);
  const QRectF whole = Place(place);
  // Only the part that shows, since a deep zoom makes the whole larger than a painter can take.
  const QRectF shown = whole & QRectF(QPointF(), QSizeF(surface_.pixels));
  if (image.isNull() || !shown.isValid()) return;
  const double stepX = image.width() / whole.width();
  const double stepY = image.height() / whole.height();
  const QRectF source((shown.left() - whole.left()) * stepX, (shown.top() - whole.top()) * stepY,
                      shown.width() * stepX, shown.height() * stepY);
  painter_.drawImage(shown, image, source);
}

}  // namespace morvane::platform
