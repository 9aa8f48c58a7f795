#include "widgets/WheelGuard.h"

#include <QAbstractScrollArea>
#include <QAbstractSlider>
#include <QAbstractSpinBox>
#include <QComboBox>
#include <QEvent>

namespace morvane::widgets {
namespace {

// The bars of a scrolled area are turned with the pointer anywhere over it; they hold no value.
bool HoldsValue(const QObject* widget) {
  if (qobject_cast<const QComboBox*>(widget) != nullptr) return true;
  if (qobject_cast<const QAbstractSpinBox*>(widget) != nullptr) return true;
  if (qobject_cast<const QAbstractSlider*>(widget) == nullptr) return false;
  const QObject* container = widget->parent();
  return container == nullptr || qobject_cast<const QAbstractScrollArea*>(container->parent()) == nullptr;
}

}  // namespace

bool WheelGuard::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::Wheel || !HoldsValue(watched)) return false;
  if (static_cast<const QWidget*>(watched)->hasFocus()) return false;
  // Not accepted, so that it goes on to the parents.
  event->ignore();
  return true;
}

}  // namespace morvane::widgets
