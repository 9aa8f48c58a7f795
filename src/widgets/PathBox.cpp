#include "widgets/PathBox.h"

#include <QAbstractItemView>
#include <QHelpEvent>
#include <QScreen>
#include <QScrollBar>
#include <QStyleOptionComboBox>
#include <QToolTip>

namespace morvane::widgets {

// From the base class's option: this one's would ask for the width again.
int PathBox::TextWidth() const {
  QStyleOptionComboBox option;
  QComboBox::initStyleOption(&option);
  constexpr int kPadding = 4;  // what styles leave free within the field
  return style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, this).width() -
         kPadding;
}

void PathBox::initStyleOption(QStyleOptionComboBox* option) const {
  QComboBox::initStyleOption(option);
  option->currentText = fontMetrics().elidedText(option->currentText, Qt::ElideLeft, TextWidth());
}

bool PathBox::event(QEvent* event) {
  const bool cut = fontMetrics().horizontalAdvance(currentText()) > TextWidth();
  if (event->type() != QEvent::ToolTip || !cut) return QComboBox::event(event);
  QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), currentText(), this);
  return true;
}

void PathBox::showPopup() {
  QAbstractItemView& list = *view();
  list.setTextElideMode(Qt::ElideLeft);
  const int bar = list.verticalScrollBar()->sizeHint().width() + 2 * list.frameWidth();
  list.setMinimumWidth(std::min(list.sizeHintForColumn(0) + bar, screen()->availableSize().width() / 2));
  QComboBox::showPopup();
}

}  // namespace morvane::widgets
