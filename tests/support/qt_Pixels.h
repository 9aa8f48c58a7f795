// What can be seen on a widget.
#pragma once

#include <QImage>
#include <QWidget>
#include <cstdlib>

namespace morvane::test {

// Pixels of nearly that colour on the widget as it is painted now.
inline int CountPixels(QWidget& widget, const QColor& color, const QRect& where = {}) {
  constexpr int kTolerance = 90;  // lines are smoothed
  const QImage image = widget.grab().toImage();
  const QRect area = where.isNull() ? image.rect() : where & image.rect();
  int count = 0;
  for (int y = area.top(); y <= area.bottom(); ++y) {
    for (int x = area.left(); x <= area.right(); ++x) {
      const QColor pixel = image.pixelColor(x, y);
      count += std::abs(pixel.red() - color.red()) < kTolerance &&
                       std::abs(pixel.green() - color.green()) < kTolerance &&
                       std::abs(pixel.blue() - color.blue()) < kTolerance
                   ? 1
                   : 0;
    }
  }
  return count;
}

}  // namespace morvane::test
