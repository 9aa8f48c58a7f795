// The mouse wheel turns a value only where the keyboard would: over a selector, spin box or slider without
// the focus it scrolls what lies around it. One filter for the whole application, so no form has its own.
#pragma once

#include <QObject>

namespace morvane::widgets {

class WheelGuard : public QObject {
  Q_OBJECT

 public:
  using QObject::QObject;
  bool eventFilter(QObject* watched, QEvent* event) override;
};

}  // namespace morvane::widgets
