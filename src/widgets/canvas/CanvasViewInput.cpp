// Mouse and keys of the canvas view.
#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QRubberBand>
#include <cmath>

#include "widgets/canvas/CanvasView.h"

namespace morvane::widgets {
namespace {

constexpr double kWheelStep = 1.25;  // for one notch
constexpr double kNotch = 120;       // eighths of a degree
constexpr double kPanPart = 0.1;     // of the widget, for one arrow key

}  // namespace

void CanvasView::wheelEvent(QWheelEvent* event) {
  const double notches = event->angleDelta().y() / kNotch;
  if (notches != 0) ZoomAt(event->position(), std::pow(kWheelStep, notches));
  event->accept();
}

void CanvasView::mousePressEvent(QMouseEvent* event) {
  if (event->button() == Qt::MiddleButton) {
    panning_ = true;
    panFrom_ = event->position();
    setCursor(Qt::ClosedHandCursor);
    return;
  }
  if (drag_ && event->button() != Qt::LeftButton) return EndDrag();
  if (rubberBand_ && event->button() == Qt::LeftButton) {
    drag_ = {event->position(), ToWorld(event->position())};
    return;
  }
  emit Pressed(ToWorld(event->position()), event->button(), event->modifiers());
}

void CanvasView::mouseMoveEvent(QMouseEvent* event) {
  if (panning_) {
    Pan(event->position() - panFrom_);
    panFrom_ = event->position();
  }
  if (drag_) Span(event->position());
  emit MouseMoved(ToWorld(event->position()));
}

void CanvasView::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton && drag_) Release(event->position(), event->modifiers());
  if (event->button() != Qt::MiddleButton) return;
  panning_ = false;
  unsetCursor();
}

void CanvasView::Span(const QPointF& to) {
  drag_->moved |= (to - drag_->from).manhattanLength() >= QApplication::startDragDistance();
  if (!drag_->moved) return;
  if (band_ == nullptr) band_ = new QRubberBand(QRubberBand::Rectangle, this);
  band_->setGeometry(QRectF(FromWorld(drag_->world), to).normalized().toAlignedRect());
  band_->show();
}

void CanvasView::EndDrag() {
  drag_.reset();
  if (band_ != nullptr) band_->hide();
}

// The button's owner may do long work, so the drag is over before it is told.
void CanvasView::Release(const QPointF& position, Qt::KeyboardModifiers modifiers) {
  Span(position);
  const Drag drag = *drag_;
  EndDrag();
  if (drag.moved) {
    emit RubberBand(QRectF(drag.world, ToWorld(position)).normalized(), modifiers);
  } else {
    emit Pressed(drag.world, Qt::LeftButton, modifiers);
  }
}

// A window that comes in between takes the release with it.
void CanvasView::focusOutEvent(QFocusEvent* event) {
  EndDrag();
  QWidget::focusOutEvent(event);
}

// While a rectangle is spanned, Escape is nobody else's.
bool CanvasView::event(QEvent* event) {
  const bool escape =
      event->type() == QEvent::ShortcutOverride && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape;
  if (escape && drag_) event->accept();
  return QWidget::event(event);
}

void CanvasView::mouseDoubleClickEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) emit DoubleClicked(ToWorld(event->position()));
}

void CanvasView::keyPressEvent(QKeyEvent* event) {
  const QPointF center(width() / 2.0, height() / 2.0);
  const double stepX = width() * kPanPart;
  const double stepY = height() * kPanPart;
  const bool control = event->modifiers().testFlag(Qt::ControlModifier);
  switch (event->key()) {
    case Qt::Key_Escape:
      if (drag_) return EndDrag();
      break;
    case Qt::Key_Left:
      return Pan({stepX, 0});
    case Qt::Key_Right:
      return Pan({-stepX, 0});
    case Qt::Key_Up:
      return Pan({0, stepY});
    case Qt::Key_Down:
      return Pan({0, -stepY});
    case Qt::Key_Plus:
    case Qt::Key_Equal:
      return ZoomAt(center, kWheelStep);
    case Qt::Key_Minus:
      return ZoomAt(center, 1 / kWheelStep);
    case Qt::Key_F:
    case Qt::Key_Home:
      return Fit();
    case Qt::Key_0:
      if (control) return Fit();
      break;
    default:
      break;
  }
  QWidget::keyPressEvent(event);
}

void CanvasView::leaveEvent(QEvent*) {
  emit MouseLeft();
}

}  // namespace morvane::widgets
