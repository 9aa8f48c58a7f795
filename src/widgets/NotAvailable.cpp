#include "widgets/NotAvailable.h"

#include <QWidget>

namespace morvane::widgets {

void MarkNotAvailable(QWidget& control) {
  control.setEnabled(false);
  control.setToolTip(kNotAvailable);
}

}  // namespace morvane::widgets
