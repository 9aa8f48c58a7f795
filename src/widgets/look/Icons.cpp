#include "widgets/look/Icons.h"

#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QPixmapCache>
#include <QSvgRenderer>
#include <algorithm>
#include <string_view>

namespace morvane::widgets {
namespace {

QColor ColorOf(QIcon::Mode mode) {
  const QPalette palette = QGuiApplication::palette();
  switch (mode) {
    case QIcon::Disabled:
      return palette.color(QPalette::Disabled, QPalette::ButtonText);
    case QIcon::Selected:
      return palette.color(QPalette::HighlightedText);
    default:
      return palette.color(QPalette::ButtonText);
  }
}

QByteArray Svg(const IconPath& icon, const QColor& color) {
  return "<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 24 24'><path fill='none' stroke-width='2' "
         "stroke-linecap='round' stroke-linejoin='round' stroke='" +
         color.name().toLatin1() + "' d='" + icon.path + "'/></svg>";
}

class StrokeEngine : public QIconEngine {
 public:
  explicit StrokeEngine(const IconPath& icon) : icon_(icon) {}

  void paint(QPainter* painter, const QRect& place, QIcon::Mode mode, QIcon::State) override {
    QSvgRenderer renderer(Svg(icon_, ColorOf(mode)));
    const int side = std::min(place.width(), place.height());
    QRect square(0, 0, side, side);
    square.moveCenter(place.center());
    painter->setRenderHint(QPainter::Antialiasing);
    renderer.render(painter, square);
  }

  // The palette may have changed since the last time, so the colour is part of what is kept.
  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
    const QString key = QString("icon %1 %2x%3 %4")
                            .arg(icon_.name)
                            .arg(size.width())
                            .arg(size.height())
                            .arg(ColorOf(mode).name());
    QPixmap pixmap;
    if (QPixmapCache::find(key, &pixmap)) return pixmap;
    pixmap = QPixmap(size);
    pixmap.fill(Qt::transparent);
    {
      QPainter painter(&pixmap);
      paint(&painter, QRect(QPoint(), size), mode, state);
    }
    QPixmapCache::insert(key, pixmap);
    return pixmap;
  }

  QIconEngine* clone() const override { return new StrokeEngine(icon_); }

 private:
  const IconPath& icon_;  // of the table
};

}  // namespace

QIcon Icon(const char* name) {
  const std::span<const IconPath> icons = IconPaths();
  const auto found = std::find_if(icons.begin(), icons.end(),
                                  [&](const IconPath& icon) { return std::string_view(icon.name) == name; });
  return found == icons.end() ? QIcon() : QIcon(new StrokeEngine(*found));
}

}  // namespace morvane::widgets
