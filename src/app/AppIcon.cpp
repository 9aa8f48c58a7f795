#include "app/AppIcon.h"

#include <QPainter>
#include <QPainterPath>

namespace morvane::app {
namespace {

// A carriage on its beam, and the stroke that its tool leaves; drawn on a field of 64 units.
QPixmap Paint(int size) {
  QPixmap pixmap(size, size);
  pixmap.fill(Qt::transparent);
  QPainter painter(&pixmap);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.scale(size / 64.0, size / 64.0);
  painter.setPen(Qt::NoPen);
  painter.setBrush(QColor(0x16, 0x20, 0x2c));
  painter.drawRoundedRect(QRectF(2, 2, 60, 60), 12, 12);
  painter.setPen(QPen(QColor(0x8a, 0x9b, 0xad), 5, Qt::SolidLine, Qt::RoundCap));
  painter.drawLine(12, 17, 52, 17);
  painter.drawLine(44, 15, 44, 27);
  QPainterPath stroke(QPointF(14, 50));
  stroke.lineTo(14, 30);
  stroke.lineTo(25, 42);
  stroke.lineTo(36, 30);
  stroke.lineTo(36, 50);
  stroke.lineTo(50, 50);
  painter.setPen(QPen(QColor(0x35, 0xc9, 0xd6), 5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.drawPath(stroke);
  return pixmap;
}

}  // namespace

QIcon AppIcon() {
  QIcon icon;
  for (const int size : {16, 24, 32, 48, 64, 128}) icon.addPixmap(Paint(size));
  return icon;
}

}  // namespace morvane::app
