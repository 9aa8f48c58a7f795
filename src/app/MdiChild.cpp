#include "app/MdiChild.h"

#include <QCloseEvent>

#include "platform/qt/Operations.h"

namespace morvane::app {

MdiChild::MdiChild(QWidget* form, platform::Operations& operations) : operations_(operations) {
  setWidget(form);
  setObjectName(form->objectName() + "Frame");
  setAttribute(Qt::WA_DeleteOnClose, false);
}

void MdiChild::closeEvent(QCloseEvent* event) {
  QMdiSubWindow::closeEvent(event);
  if (!event->isAccepted()) return;
  operations_.DeleteWhenIdle(this);
}

}  // namespace morvane::app
