#include "app/menu/FittedMenuBar.h"

#include <QApplication>
#include <QEvent>
#include <QProxyStyle>
#include <QScopedValueRollback>
#include <QStyleOptionMenuItem>
#include <algorithm>

namespace morvane::app {
namespace {

constexpr int kMostCloser = 8;         // pixels between two menus; captions must not run together
constexpr double kSmallest = 0.7;      // of the letters' size; what does not fit then stands behind ">>"
constexpr double kSmallerStep = 0.02;  // of the letters' size

}  // namespace

// Takes some pixels from between the menus: first those between the items, then those inside them.
class FittedMenuBar::CloseStyle : public QProxyStyle {
 public:
  int closer = 0;

  int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override {
    const int value = QProxyStyle::pixelMetric(metric, option, widget);
    return metric == PM_MenuBarItemSpacing ? std::max(value - closer, 0) : value;
  }
  QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                         const QWidget* widget) const override {
    const QSize size = QProxyStyle::sizeFromContents(type, option, contents, widget);
    if (type != CT_MenuBarItem) return size;
    const int between = QProxyStyle::pixelMetric(PM_MenuBarItemSpacing, option, widget);
    const int inside = std::max(closer - between, 0);
    return {std::max(size.width() - inside, contents.width()), size.height()};
  }
};

FittedMenuBar::FittedMenuBar(QWidget* parent) : QMenuBar(parent), style_(new CloseStyle) {
  style_->setParent(this);
  setStyle(style_);
}

FittedMenuBar::~FittedMenuBar() = default;

void FittedMenuBar::showEvent(QShowEvent* event) {
  Fit();
  QMenuBar::showEvent(event);
}

void FittedMenuBar::resizeEvent(QResizeEvent* event) {
  Fit();
  QMenuBar::resizeEvent(event);
}

void FittedMenuBar::actionEvent(QActionEvent* event) {
  QMenuBar::actionEvent(event);
  Fit();
}

void FittedMenuBar::changeEvent(QEvent* event) {
  QMenuBar::changeEvent(event);
  const QEvent::Type type = event->type();
  if (type == QEvent::StyleChange || type == QEvent::FontChange) Fit();
}

int FittedMenuBar::Needed(const QFont& font) const {
  const QFontMetrics metrics(font);
  QStyleOptionMenuItem option;
  option.initFrom(this);
  option.fontMetrics = metrics;
  const int between = style_->pixelMetric(QStyle::PM_MenuBarItemSpacing, &option, this);
  const int edge = style_->pixelMetric(QStyle::PM_MenuBarPanelWidth, &option, this) +
                   style_->pixelMetric(QStyle::PM_MenuBarHMargin, &option, this);
  int width = 2 * edge + between;
  for (const QAction* action : actions()) {
    if (!action->isVisible()) continue;
    const QSize text = metrics.size(Qt::TextShowMnemonic, action->text());
    width += style_->sizeFromContents(QStyle::CT_MenuBarItem, &option, text, this).width() + between;
  }
  return width;
}

void FittedMenuBar::Fit() {
  // Before it is shown, the bar is filled entry by entry at no width that means anything.
  if (fitting_ || !isVisible()) return;
  const QScopedValueRollback<bool> guard(fitting_, true);
  const int before = style_->closer;
  const QFont usual = QApplication::font(this);
  QFont fitted = usual;
  style_->closer = 0;
  while (style_->closer < kMostCloser && Needed(fitted) > width()) ++style_->closer;
  for (double size = 1; size > kSmallest && Needed(fitted) > width(); size -= kSmallerStep) {
    fitted.setPointSizeF(usual.pointSizeF() * size);
  }
  if (fitted != font()) setFont(fitted);
  if (style_->closer == before) return;
  // The bar lays out its items anew only when something tells it that they changed.
  QEvent changed(QEvent::StyleChange);
  QMenuBar::changeEvent(&changed);
}

}  // namespace morvane::app
