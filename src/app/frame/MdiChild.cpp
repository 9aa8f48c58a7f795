#include "app/frame/MdiChild.h"

#include <QChildEvent>
#include <QCloseEvent>
#include <QCoreApplication>
#include <QProxyStyle>

#include "platform/qt/Operations.h"

namespace morvane::app {

namespace {

// A maximized child keeps its title bar, so that the menu bar and the frame's caption stay as they are.
class FullFrameStyle : public QProxyStyle {
 public:
  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* data) const override {
    if (hint == SH_Workspace_FillSpaceOnMaximize) return 1;
    return QProxyStyle::styleHint(hint, option, widget, data);
  }
};

}  // namespace

MdiChild::MdiChild(QWidget* form, platform::Operations& operations) : operations_(operations) {
  auto* style = new FullFrameStyle;
  style->setParent(this);
  setStyle(style);
  setWidget(form);
  setObjectName(form->objectName() + "Frame");
  setAttribute(Qt::WA_DeleteOnClose, false);
}

void MdiChild::closeEvent(QCloseEvent* event) {
  QMdiSubWindow::closeEvent(event);
  if (!event->isAccepted()) return;
  // The area activates another child now, not when this one is deleted.
  QChildEvent removed(QEvent::ChildRemoved, this);
  QCoreApplication::sendEvent(parentWidget(), &removed);
  operations_.DeleteWhenIdle(this);
}

}  // namespace morvane::app
