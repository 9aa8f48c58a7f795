// Shows a drawing and lets its user zoom and move in it. The painted picture is kept, so that only a
// changed drawing or view costs painting.
#pragma once

#include <QColor>
#include <QImage>
#include <QPointF>
#include <QTimer>
#include <QWidget>
#include <functional>
#include <optional>

#include "platform/Canvas.h"

class QRubberBand;

namespace morvane::platform {
class PictureStore;
}

namespace morvane::widgets {

class CanvasView : public QWidget {
  Q_OBJECT

 public:
  // Draws the whole drawing into the canvas; called once for each painting. `lines` is roughly how many
  // lines it has, and decides whether they are smoothed.
  struct Drawing {
    std::function<void(platform::Canvas&)> draw;
    platform::CanvasView fit;  // what is seen without zoom
    std::size_t lines = 0;
  };

  explicit CanvasView(QWidget* parent = nullptr);
  // The pictures that drawings name; without a store none are drawn.
  void SetPictures(platform::PictureStore* pictures) { pictures_ = pictures; }
  // Around and behind the drawing. An invalid colour stands for the desktop's own.
  void SetBackground(const QColor& color);
  // Zoom and place stay as they are.
  void SetDrawing(Drawing drawing);
  // With it, dragging with the left button spans a rectangle. Without it, which is the default, the left
  // button tells its press at once.
  void SetRubberBand(bool on) { rubberBand_ = on; }

  // What the widget shows now, and what it would show without zoom.
  platform::CanvasView View() const;
  const platform::CanvasView& FitView() const { return drawing_.fit; }
  double Zoom() const { return zoom_; }
  QPointF ToWorld(const QPointF& position) const;
  QPointF FromWorld(const QPointF& world) const;

  // Keeps the world point at `position` where it is.
  void ZoomAt(const QPointF& position, double factor);
  // By a number of pixels.
  void Pan(const QPointF& distance);
  void Fit();

  QSize sizeHint() const override { return {480, 320}; }

 signals:
  void MouseMoved(const QPointF& world);
  void MouseLeft();
  // With a rubber band, the left button tells only a click, when it is released.
  void Pressed(const QPointF& world, Qt::MouseButton button, Qt::KeyboardModifiers modifiers);
  // A rectangle was spanned; Escape and any other button give it up without this.
  void RubberBand(const QRectF& world, Qt::KeyboardModifiers modifiers);
  void DoubleClicked(const QPointF& world);
  // The widget has another shape, so the drawing may want another fit.
  void Resized();

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void changeEvent(QEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void leaveEvent(QEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  bool event(QEvent* event) override;

 private:
  // The left button, from its press to its release.
  struct Drag {
    QPointF from;        // on the widget
    QPointF world;       // the same point, kept while the view moves
    bool moved = false;  // so far that it is no click
  };

  void Span(const QPointF& to);
  void EndDrag();
  void Release(const QPointF& position, Qt::KeyboardModifiers modifiers);
  void ShowOther();
  void Render();
  bool PaintsSlowly() const;
  QRectF PaintedPlace() const;

  Drawing drawing_;
  platform::PictureStore* pictures_ = nullptr;
  QColor background_;
  double zoom_ = 1;
  QPointF shift_;  // of the upper left corner, in world units, from where the fit has it

  QImage painted_;
  platform::CanvasView paintedView_;
  bool stale_ = true;     // the drawing changed since it was painted
  qint64 paintTime_ = 0;  // milliseconds that the last painting took
  QTimer repaint_;        // paints after a slow drawing was moved
  bool panning_ = false;
  QPointF panFrom_;
  bool rubberBand_ = false;
  std::optional<Drag> drag_;
  QRubberBand* band_ = nullptr;  // made for the first drag
};

}  // namespace morvane::widgets
