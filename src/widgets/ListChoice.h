// Shows a value in a list that may not hold it yet.
#pragma once

class QComboBox;
class QString;

namespace morvane::widgets {

// Makes `text` the choice; compared without regard to case, and added at the end when it is missing.
void ShowChoice(QComboBox& list, const QString& text);

}  // namespace morvane::widgets
