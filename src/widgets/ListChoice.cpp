#include "widgets/ListChoice.h"

#include <QComboBox>

namespace morvane::widgets {

void ShowChoice(QComboBox& list, const QString& text) {
  int index = list.findText(text, Qt::MatchFixedString);
  if (index < 0) {
    index = list.count();
    list.addItem(text);
  }
  list.setCurrentIndex(index);
}

}  // namespace morvane::widgets
