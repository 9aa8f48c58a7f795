// How the value of one cell is edited, as the owner of a cell grid tells it.
#pragma once

#include <QStringList>

namespace morvane::widgets {

enum class EditorKind { None, Text, List, ListWithButton };

struct CellEditor {
  EditorKind kind = EditorKind::None;  // None: the cell is read-only
  QStringList choices;                 // of the lists
};

}  // namespace morvane::widgets
