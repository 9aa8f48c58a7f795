#include "widgets/canvas/CanvasView.h"

#include <QCursor>
#include <QElapsedTimer>
#include <QPainter>
#include <algorithm>

#include "platform/qt/PictureStore.h"
#include "platform/qt/QtCanvas.h"

namespace morvane::widgets {
namespace {

constexpr double kMinZoom = 0.05;
constexpr double kMaxZoom = 5000;
constexpr qint64 kSlow = 30;       // milliseconds
constexpr int kRepaintDelay = 60;  // milliseconds

}  // namespace

CanvasView::CanvasView(QWidget* parent) : QWidget(parent) {
  setMouseTracking(true);
  setFocusPolicy(Qt::StrongFocus);
  setAttribute(Qt::WA_OpaquePaintEvent);
  setMinimumSize(120, 80);
  repaint_.setSingleShot(true);
  repaint_.setInterval(kRepaintDelay);
  connect(&repaint_, &QTimer::timeout, this, [this] {
    stale_ = true;
    update();
  });
}

void CanvasView::SetBackground(const QColor& color) {
  if (background_ == color) return;
  background_ = color;
  stale_ = true;
  update();
}

void CanvasView::SetDrawing(Drawing drawing) {
  drawing_ = std::move(drawing);
  stale_ = true;
  update();
}

platform::CanvasView CanvasView::View() const {
  const platform::CanvasView& fit = drawing_.fit;
  return {static_cast<float>(fit.Left + shift_.x()), static_cast<float>(fit.Top + shift_.y()),
          static_cast<float>(fit.Width / zoom_), static_cast<float>(fit.Height / zoom_)};
}

QPointF CanvasView::ToWorld(const QPointF& position) const {
  const platform::CanvasView view = View();
  return {view.Left + position.x() * view.Width / std::max(width(), 1),
          view.Top + position.y() * view.Height / std::max(height(), 1)};
}

QPointF CanvasView::FromWorld(const QPointF& world) const {
  const platform::CanvasView view = View();
  return {(world.x() - view.Left) * width() / view.Width, (world.y() - view.Top) * height() / view.Height};
}

void CanvasView::ZoomAt(const QPointF& position, double factor) {
  const QPointF kept = ToWorld(position);
  zoom_ = std::clamp(zoom_ * factor, kMinZoom, kMaxZoom);
  shift_ += kept - ToWorld(position);
  ShowOther();
}

void CanvasView::Pan(const QPointF& distance) {
  shift_ -= ToWorld(distance) - ToWorld({0, 0});
  ShowOther();
}

void CanvasView::Fit() {
  zoom_ = 1;
  shift_ = {};
  ShowOther();
}

// A drawing that paints slowly is moved as a picture first, and painted when the hand rests.
void CanvasView::ShowOther() {
  if (paintTime_ > kSlow) {
    repaint_.start();
  } else {
    stale_ = true;
  }
  update();
  if (!underMouse()) return;
  const QPointF mouse = mapFromGlobal(QPointF(QCursor::pos()));
  if (drag_) Span(mouse);
  emit MouseMoved(ToWorld(mouse));
}

void CanvasView::Render() {
  QElapsedTimer timer;
  timer.start();
  const double ratio = devicePixelRatioF();
  const QSize pixels = (QSizeF(size()) * ratio).toSize().expandedTo({1, 1});
  if (painted_.size() != pixels) painted_ = QImage(pixels, QImage::Format_RGB32);
  painted_.setDevicePixelRatio(1);
  const QColor background = background_.isValid() ? background_ : palette().color(QPalette::Mid);
  {
    QPainter painter(&painted_);
    painter.setFont(font());
    painter.fillRect(painted_.rect(), background);
    if (drawing_.draw && pictures_ != nullptr) {
      platform::QtCanvas canvas(painter, {pixels, ratio, background, platform::SmoothLines(drawing_.lines)},
                                *pictures_);
      canvas.HoldView(View());
      drawing_.draw(canvas);
    }
  }
  painted_.setDevicePixelRatio(ratio);
  paintedView_ = View();
  stale_ = false;
  paintTime_ = timer.elapsed();
}

// Where the picture of an earlier view lies in the present one.
QRectF CanvasView::PaintedPlace() const {
  const platform::CanvasView& old = paintedView_;
  return {FromWorld({old.Left, old.Top}),
          FromWorld({double{old.Left} + old.Width, double{old.Top} + old.Height})};
}

void CanvasView::paintEvent(QPaintEvent*) {
  if (stale_ || painted_.isNull()) Render();
  QPainter painter(this);
  if (repaint_.isActive()) {
    painter.fillRect(rect(), background_.isValid() ? background_ : palette().color(QPalette::Mid));
    painter.drawImage(PaintedPlace(), painted_);
  } else {
    painter.drawImage(QPointF(0, 0), painted_);
  }
  if (!hasFocus()) return;
  painter.setPen(QPen(palette().color(QPalette::Highlight), 1));
  painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

void CanvasView::resizeEvent(QResizeEvent*) {
  stale_ = true;
  emit Resized();
}

void CanvasView::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() != QEvent::PaletteChange && event->type() != QEvent::FontChange) return;
  stale_ = true;
  update();
}

}  // namespace morvane::widgets
