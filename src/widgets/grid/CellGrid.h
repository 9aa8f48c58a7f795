// The table of texts that windows edit in place: labels on the left, values beside them, and over the
// current value one floating editor at most. It shows and tells; what an edit means is its owner's.
#pragma once

#include <QTableView>
#include <functional>
#include <vector>

#include "widgets/grid/CellEditor.h"
#include "widgets/grid/CellEditors.h"
#include "widgets/grid/CellModel.h"

namespace morvane::widgets {

class CellGrid : public QTableView {
  Q_OBJECT

 public:
  using ChooseEditor = std::function<CellEditor(int row, int column)>;

  explicit CellGrid(QWidget* parent = nullptr);

  // Asked when a cell's editor or keys are first wanted. Without one every value is a free text.
  void SetEditorChooser(ChooseEditor chooser);
  // Columns on the left that can't be edited, and by whose texts a row is known again.
  void SetLabelColumns(int count);
  // None, which is the default, hides the head.
  void SetHeaders(const QStringList& headers);
  // Refills the grid and emits nothing. The current row is kept while its label is there, with an open
  // editor, its cursor and the focus. From within CellEdited, or as the first call behind it, it leaves what
  // was typed as it was typed; else the open editor takes over a changed value.
  void SetRows(const std::vector<std::vector<QString>>& rows);
  // One cell alone, emitting nothing; an editor over it takes the text over.
  void SetCellText(int row, int column, const QString& text);
  // The rows that come next are those of another thing: Escape will not bring back a value of this one.
  void StartOver() { startOver_ = true; }

  int RowCount() const { return model_.rowCount(); }
  int ColumnCount() const { return model_.columnCount(); }
  // What the cell shows: in the current one that which was typed.
  QString CellText(int row, int column) const { return model_.Text(row, column); }
  // -1: there is no current cell.
  int CurrentRow() const { return currentIndex().row(); }
  int CurrentColumn() const { return currentIndex().column(); }
  void SetCurrentCell(int row, int column, bool edit);

  // The editor of the current cell, focus in it, all text selected.
  void OpenEditor();
  // Takes it away without a change of the text; a focus in it goes back to the grid.
  void CloseEditor();
  bool EditorOpen() const { return editors_.Shown() != EditorKind::None; }
  // For names, tool tips, and a validator, which holds for keys in the grid too.
  const CellEditors& Editors() const { return editors_; }

 signals:
  // Each change: key in the grid, change of the text, choice.
  void CellEdited(int row, int column, const QString& text);
  void CurrentCellMoved(int row, int column);
  // Ctrl+Up and Ctrl+Down, and the wheel over the current value while the grid has the focus.
  void StepRequested(int row, int column, int steps);
  // The button beside the list of files.
  void ButtonPressed(int row, int column);

 protected:
  void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
  QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
  void updateGeometries() override;
  void scrollContentsBy(int dx, int dy) override;
  bool eventFilter(QObject* watched, QEvent* event) override;
  bool event(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void keyboardSearch(const QString&) override {}
  void inputMethodEvent(QInputMethodEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  void ConnectEditors();
  const CellEditor& Editor();
  CellEditor Choose(int row, int column) const;
  QModelIndex ValueCell(const QModelIndex& cell) const;
  QString Shown() const { return model_.Text(CurrentRow(), CurrentColumn()); }
  void EnterCell();
  void KeepCell(const QString& shown);
  void ShowValue();
  void HideEditor();
  void FitColumns();
  void FitRows();

  bool MoveKey(const QKeyEvent& key);
  bool TypeKey(const QKeyEvent& key);
  bool EditorKey(const QKeyEvent& key);
  void Type(const QString& characters);
  void Edit(const QString& text);
  bool Restore();
  void Step(int steps);
  void MoveRow(int rows);
  void GoOn();
  void Travel(int way);

  CellModel model_;
  CellEditors editors_;
  ChooseEditor chooser_;

  // The current cell.
  QPersistentModelIndex entered_;
  CellEditor editor_;  // once it was asked for
  bool asked_ = false;
  QString kept_;             // the value when the cell was entered
  QString value_;            // as the owner knows it; the cell may show what is being typed
  QString composing_;        // the unfinished end of what it shows, from an input method
  bool unanswered_ = false;  // an edit was told, and no rows came since
  int telling_ = 0;          // edits that are being told just now

  bool startOver_ = false;
  bool filling_ = false;
  bool editOn_ = false;  // the editor is closed only because its row can't be edited
  int fitted_ = 0;       // columns that have their widths
  QModelIndex pressed_;  // under the button; only compared
  int wheel_ = 0;        // what was turned short of a notch
};

}  // namespace morvane::widgets
