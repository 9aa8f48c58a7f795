// Keys, mouse and focus of the cell grid and of its editors.
#include <QApplication>
#include <QComboBox>
#include <QFocusEvent>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPointer>
#include <QValidator>
#include <QWheelEvent>
#include <algorithm>

#include "widgets/grid/CellGrid.h"

namespace morvane::widgets {
namespace {

constexpr int kNotch = 120;  // eighths of a degree

// A character for the value, and no command. Control with Alt is how some keyboards say AltGr.
bool IsCharacter(const QKeyEvent& key) {
  const Qt::KeyboardModifiers modifiers = key.modifiers();
  if (modifiers.testFlag(Qt::MetaModifier)) return false;
  if (modifiers.testFlag(Qt::ControlModifier) != modifiers.testFlag(Qt::AltModifier)) return false;
  return !key.text().isEmpty() && key.text().front().isPrint();
}

Qt::KeyboardModifiers Modifiers(const QKeyEvent& key) {
  return key.modifiers() & ~Qt::KeyboardModifiers(Qt::KeypadModifier);
}

bool IsReturn(const QKeyEvent& key) {
  return (key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter) && Modifiers(key) == Qt::NoModifier;
}

// The focus comes back by itself: from other windows, open lists and menus.
bool ComesBack(const QFocusEvent& focus, const QWidget& from) {
  const QWidget* next = QApplication::focusWidget();
  return next == nullptr || next->window() != from.window() || focus.reason() == Qt::PopupFocusReason ||
         focus.reason() == Qt::MenuBarFocusReason;
}

// A text box takes the keys of undo even when it has nothing to undo; then they are the window's.
bool IsVainUndo(const QKeyEvent& key, const QLineEdit& text) {
  return (key.matches(QKeySequence::Undo) && !text.isUndoAvailable()) ||
         (key.matches(QKeySequence::Redo) && !text.isRedoAvailable());
}

}  // namespace

bool CellGrid::eventFilter(QObject* watched, QEvent* event) {
  if (watched != editors_.Input()) return QTableView::eventFilter(watched, event);
  const bool text = editors_.Shown() == EditorKind::Text;
  switch (event->type()) {
    case QEvent::KeyPress:
      return EditorKey(*static_cast<QKeyEvent*>(event));
    case QEvent::ShortcutOverride:
      return text && IsVainUndo(*static_cast<QKeyEvent*>(event), editors_.TextBox());
    case QEvent::Wheel:
      // A list would change its choice in passing.
      event->setAccepted(text);
      return !text;
    case QEvent::FocusOut:
      if (!ComesBack(*static_cast<QFocusEvent*>(event), *this)) CloseEditor();
      return false;
    default:
      return false;
  }
}

bool CellGrid::event(QEvent* event) {
  if (event->type() == QEvent::ShortcutOverride && IsCharacter(*static_cast<QKeyEvent*>(event)) &&
      Editor().kind != EditorKind::None) {
    event->accept();
    return true;
  }
  return QTableView::event(event);
}

void CellGrid::keyPressEvent(QKeyEvent* event) {
  // What an open editor has no use for comes here.
  if (EditorOpen()) return event->ignore();
  if (MoveKey(*event) || TypeKey(*event)) return;
  switch (event->key()) {
    case Qt::Key_Left:
    case Qt::Key_Right:
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_Home:
    case Qt::Key_End:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
      return QTableView::keyPressEvent(event);
    default:
      event->ignore();
  }
}

// Up and Down, in the grid and in its editors.
bool CellGrid::MoveKey(const QKeyEvent& key) {
  const int way = key.key() == Qt::Key_Up ? -1 : key.key() == Qt::Key_Down ? 1 : 0;
  if (way == 0) return false;
  if (Modifiers(key) == Qt::ControlModifier) {
    Step(-way);
    return true;
  }
  if (Modifiers(key) != Qt::NoModifier) return false;
  MoveRow(way);
  return true;
}

// In the grid itself.
bool CellGrid::TypeKey(const QKeyEvent& key) {
  if (Editor().kind == EditorKind::None) return false;
  if (key.key() == Qt::Key_Escape) return Restore();
  if (IsReturn(key) || key.key() == Qt::Key_F2) {
    OpenEditor();
  } else if (key.key() == Qt::Key_Backspace && !key.modifiers().testFlag(Qt::AltModifier)) {
    QString text = Shown();
    text.chop(1);
    Edit(text);
  } else if (IsCharacter(key)) {
    Type(key.text());
  } else {
    return false;
  }
  return true;
}

bool CellGrid::EditorKey(const QKeyEvent& key) {
  if (MoveKey(key)) return true;
  const bool tab = key.key() == Qt::Key_Tab || key.key() == Qt::Key_Backtab;
  if (IsReturn(key)) {
    GoOn();
  } else if (key.key() == Qt::Key_Escape) {
    Restore();
    CloseEditor();
  } else if (tab && !key.modifiers().testFlag(Qt::ControlModifier)) {
    Travel(key.key() == Qt::Key_Tab ? 1 : -1);
  } else {
    return false;
  }
  return true;
}

void CellGrid::Type(const QString& characters) {
  QString text = Shown() + characters;
  int cursor = static_cast<int>(text.size());
  const QValidator* validator = Editor().kind == EditorKind::Text ? editors_.TextBox().validator() : nullptr;
  if (validator == nullptr || validator->validate(text, cursor) != QValidator::Invalid) Edit(text);
}

void CellGrid::Edit(const QString& text) {
  if (!entered_.isValid() || text == Shown()) return;
  value_ = text;
  model_.SetText(entered_.row(), entered_.column(), text);
  unanswered_ = true;
  const QPointer<CellGrid> alive(this);
  ++telling_;
  emit CellEdited(entered_.row(), entered_.column(), text);
  if (alive) --telling_;
}

bool CellGrid::Restore() {
  if (kept_ == Shown()) return false;
  Edit(kept_);
  return true;
}

// The answer to a step is a new value, not what was typed.
void CellGrid::Step(int steps) {
  if (Editor().kind == EditorKind::None) return;
  unanswered_ = false;
  emit StepRequested(entered_.row(), entered_.column(), steps);
}

void CellGrid::MoveRow(int rows) {
  const int row = CurrentRow() + rows;
  if (CurrentRow() < 0 || row < 0 || row >= RowCount()) return;
  const bool edit = EditorOpen() || editOn_;
  SetCurrentCell(row, CurrentColumn(), edit);
  editOn_ = edit && !EditorOpen();
}

// To the next value below.
void CellGrid::GoOn() {
  for (int row = CurrentRow() + 1; row < RowCount(); ++row) {
    if (Choose(row, CurrentColumn()).kind != EditorKind::None)
      return SetCurrentCell(row, CurrentColumn(), true);
  }
  CloseEditor();
}

// To the next value in the order of reading; out of the grid behind the last one, or when there is but one
// column of values.
void CellGrid::Travel(int way) {
  const int columns = ColumnCount();
  const int end = columns - model_.LabelColumns() > 1 ? RowCount() * columns : 0;
  for (int cell = CurrentRow() * columns + CurrentColumn() + way; cell >= 0 && cell < end; cell += way) {
    if (Choose(cell / columns, cell % columns).kind == EditorKind::None) continue;
    return SetCurrentCell(cell / columns, cell % columns, true);
  }
  CloseEditor();
  focusNextPrevChild(way > 0);
}

// Nothing is handed over in the middle of a composition: it goes on at the end of the value.
void CellGrid::inputMethodEvent(QInputMethodEvent* event) {
  if (Editor().kind == EditorKind::None) return event->ignore();
  const QString typed = Shown().chopped(composing_.size());
  composing_.clear();
  model_.SetText(entered_.row(), entered_.column(), typed);
  if (!event->commitString().isEmpty()) Type(event->commitString());
  composing_ = event->preeditString();
  model_.SetText(entered_.row(), entered_.column(), Shown() + composing_);
  event->accept();
}

void CellGrid::mousePressEvent(QMouseEvent* event) {
  const QModelIndex cell = indexAt(event->pos());
  const bool plain = event->button() == Qt::LeftButton && event->modifiers() == Qt::NoModifier;
  pressed_ = plain ? cell : QModelIndex();
  QTableView::mousePressEvent(event);
  // The value beside a label is what was meant.
  if (cell.isValid() && ValueCell(cell) != cell) setCurrentIndex(currentIndex());
}

void CellGrid::mouseReleaseEvent(QMouseEvent* event) {
  QTableView::mouseReleaseEvent(event);
  const bool click = pressed_.isValid() && indexAt(event->pos()) == pressed_;
  if (click && ValueCell(pressed_) == currentIndex()) OpenEditor();
}

void CellGrid::wheelEvent(QWheelEvent* event) {
  const bool focus = editors_.HasFocus() || window()->focusWidget() == this;
  const bool value = entered_.isValid() && visualRect(entered_).contains(event->position().toPoint());
  if (!focus || !value || event->modifiers() != Qt::NoModifier || Editor().kind != EditorKind::Text) {
    return QTableView::wheelEvent(event);
  }
  wheel_ += event->angleDelta().y();
  const int steps = wheel_ / kNotch;
  wheel_ -= steps * kNotch;
  if (steps != 0) Step(steps);
  event->accept();
}

void CellGrid::focusInEvent(QFocusEvent* event) {
  QTableView::focusInEvent(event);
  setAttribute(Qt::WA_InputMethodEnabled);
}

void CellGrid::focusOutEvent(QFocusEvent* event) {
  QTableView::focusOutEvent(event);
  if (!EditorOpen() && !ComesBack(*event, *this)) ShowValue();
}

void CellGrid::changeEvent(QEvent* event) {
  QTableView::changeEvent(event);
  if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) FitRows();
}

void CellGrid::updateGeometries() {
  QTableView::updateGeometries();
  if (entered_.isValid()) editors_.Place(visualRect(entered_));
}

void CellGrid::scrollContentsBy(int dx, int dy) {
  QTableView::scrollContentsBy(dx, dy);
  if (entered_.isValid()) editors_.Place(visualRect(entered_));
}

}  // namespace morvane::widgets
