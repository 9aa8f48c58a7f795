#include "app/frmSplash.h"

#include <QGuiApplication>
#include <QPainter>
#include <QPainterPath>
#include <QScreen>

#include "app/Version.h"

namespace morvane::app {
namespace {

constexpr QSize kSize(520, 300);
const QColor kPaper(0x16, 0x20, 0x2c);
const QColor kGrid(0x24, 0x33, 0x44);
const QColor kMark(0x35, 0xc9, 0xd6);
const QColor kGantry(0x8a, 0x9b, 0xad);

// The gantry over its work: a beam, the carriage, and the stroke that the tool has just cut.
void PaintGantry(QPainter& painter) {
  painter.setPen(QPen(kGantry, 7, Qt::SolidLine, Qt::RoundCap));
  painter.drawLine(40, 58, 480, 58);
  painter.setPen(Qt::NoPen);
  painter.setBrush(kGantry);
  painter.drawRoundedRect(QRectF(352, 40, 48, 36), 5, 5);
  painter.drawPolygon(QPolygonF({{366, 76}, {386, 76}, {379, 100}, {373, 100}}));
}

void PaintStroke(QPainter& painter) {
  QPainterPath stroke(QPointF(84, 196));
  stroke.lineTo(84, 118);
  stroke.lineTo(122, 170);
  stroke.lineTo(160, 118);
  stroke.lineTo(160, 196);
  stroke.cubicTo(210, 196, 214, 118, 264, 118);
  stroke.cubicTo(318, 118, 300, 196, 340, 160);
  stroke.lineTo(376, 106);
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(kMark, 4, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.drawPath(stroke);
}

}  // namespace

frmSplash::frmSplash() : QWidget(nullptr, Qt::SplashScreen | Qt::FramelessWindowHint) {
  setObjectName("frmSplash");
  setFixedSize(kSize);
  if (const QScreen* screen = QGuiApplication::primaryScreen()) {
    QRect place(QPoint(), kSize);
    place.moveCenter(screen->availableGeometry().center());
    move(place.topLeft());
  }
}

void frmSplash::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.fillRect(rect(), kPaper);
  painter.setPen(kGrid);
  for (int x = 20; x < width(); x += 20) painter.drawLine(x, 0, x, height());
  for (int y = 20; y < height(); y += 20) painter.drawLine(0, y, width(), y);
  PaintGantry(painter);
  PaintStroke(painter);
  QFont font = painter.font();
  font.setPixelSize(34);
  font.setBold(true);
  painter.setFont(font);
  painter.setPen(Qt::white);
  painter.drawText(QRect(40, 222, 300, 50), Qt::AlignLeft | Qt::AlignVCenter, kTitle);
  font.setPixelSize(15);
  font.setBold(false);
  painter.setFont(font);
  painter.setPen(kGantry);
  painter.drawText(QRect(280, 222, 200, 50), Qt::AlignRight | Qt::AlignVCenter, "V" + VersionText());
}

}  // namespace morvane::app
