#include "widgets/grid/CellGrid.h"

#include <QComboBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QScopedValueRollback>
#include <QStyledItemDelegate>
#include <QToolButton>
#include <algorithm>
#include <utility>

namespace morvane::widgets {
namespace {

constexpr int kRowMargin = 9;  // pixels around a line of text, enough for an editor's frame

// Labels stand on the colour of the window.
class CellDelegate : public QStyledItemDelegate {
 public:
  CellDelegate(const CellModel& model, QObject* parent) : QStyledItemDelegate(parent), model_(model) {}

 protected:
  void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
    QStyledItemDelegate::initStyleOption(option, index);
    if (index.column() < model_.LabelColumns()) option->backgroundBrush = option->palette.window();
  }

 private:
  const CellModel& model_;
};

}  // namespace

CellGrid::CellGrid(QWidget* parent) : QTableView(parent), editors_(*viewport()) {
  setModel(&model_);
  setItemDelegate(new CellDelegate(model_, this));
  setEditTriggers(NoEditTriggers);
  setSelectionMode(SingleSelection);
  setSelectionBehavior(SelectRows);
  setTabKeyNavigation(false);
  setWordWrap(false);
  setCornerButtonEnabled(false);
  setHorizontalScrollMode(ScrollPerPixel);
  verticalHeader()->hide();
  verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  horizontalHeader()->hide();
  horizontalHeader()->setHighlightSections(false);
  horizontalHeader()->setStretchLastSection(true);
  FitRows();
  ConnectEditors();
}

void CellGrid::ConnectEditors() {
  connect(&editors_.TextBox(), &QLineEdit::textEdited, this, &CellGrid::Edit);
  for (QComboBox* list : {&editors_.List(), &editors_.FileList()}) {
    connect(list, &QComboBox::textActivated, this, &CellGrid::Edit);
    list->installEventFilter(this);
  }
  editors_.TextBox().installEventFilter(this);
  connect(&editors_.FileButton(), &QToolButton::clicked, this,
          [this] { emit ButtonPressed(CurrentRow(), CurrentColumn()); });
}

void CellGrid::SetEditorChooser(ChooseEditor chooser) {
  chooser_ = std::move(chooser);
  asked_ = false;
}

void CellGrid::SetLabelColumns(int count) {
  model_.SetLabelColumns(count);
  fitted_ = 0;
  FitColumns();
}

void CellGrid::SetHeaders(const QStringList& headers) {
  const QScopedValueRollback<bool> filling(filling_, true);
  HideEditor();
  model_.SetHeaders(headers);
  horizontalHeader()->setVisible(!headers.isEmpty());
  FitColumns();
  EnterCell();
}

void CellGrid::SetRows(const std::vector<std::vector<QString>>& rows) {
  const int row = CurrentRow();
  const int column = CurrentColumn();
  const QString label = model_.Label(row);
  const QString shown = Shown();
  const QScopedValueRollback<bool> filling(filling_, true);
  model_.SetRows(rows);
  FitColumns();
  if (row < 0) return;
  const int found = model_.FindLabel(label, row);
  const int target = found >= 0 ? found : std::min(row, model_.rowCount() - 1);
  const QModelIndex cell = ValueCell(model_.index(target, std::min(column, model_.columnCount() - 1)));
  const bool same = found >= 0 && cell.column() == column;
  if (!same) editors_.Hide(*this);
  if (cell != currentIndex()) setCurrentIndex(cell);
  if (same && !startOver_) {
    KeepCell(shown);
  } else {
    EnterCell();
  }
  if (!EditorOpen()) return;
  editors_.SetText(Shown());
  editors_.Place(visualRect(cell));
}

// The current cell after its rows came anew. What was typed stays, unless the value changed otherwise.
void CellGrid::KeepCell(const QString& shown) {
  entered_ = currentIndex();
  const QString now = Shown();
  const bool answer = std::exchange(unanswered_, false) || telling_ > 0;
  const bool list = EditorOpen() && editors_.Shown() != EditorKind::Text;
  if (!list && (answer || now == value_)) {
    model_.SetText(entered_.row(), entered_.column(), shown);
  } else {
    composing_.clear();
  }
  value_ = now;
  asked_ = EditorOpen();
}

void CellGrid::SetCellText(int row, int column, const QString& text) {
  model_.SetText(row, column, text);
  if (row != entered_.row() || column != entered_.column()) return;
  value_ = text;
  composing_.clear();
  unanswered_ = false;
  if (EditorOpen()) editors_.SetText(text);
}

void CellGrid::SetCurrentCell(int row, int column, bool edit) {
  const QModelIndex cell = ValueCell(model_.index(row, column));
  if (!cell.isValid()) return;
  setCurrentIndex(cell);
  if (edit) {
    OpenEditor();
  } else {
    CloseEditor();
  }
}

void CellGrid::OpenEditor() {
  if (!entered_.isValid()) return;
  if (!EditorOpen()) {
    asked_ = false;  // the choices may be others by now
    if (Editor().kind == EditorKind::None) return setFocus();
    scrollTo(entered_);
    editors_.Show(editor_, Shown(), model_.Label(entered_.row()));
    editors_.Place(visualRect(entered_));
  }
  editors_.Input()->setFocus(Qt::OtherFocusReason);
  editors_.SelectAll();
}

void CellGrid::CloseEditor() {
  editOn_ = false;
  HideEditor();
}

void CellGrid::HideEditor() {
  if (!EditorOpen()) return;
  editors_.Hide(*this);
  ShowValue();
}

void CellGrid::ShowValue() {
  unanswered_ = false;
  composing_.clear();
  if (entered_.isValid()) model_.SetText(entered_.row(), entered_.column(), value_);
}

void CellGrid::EnterCell() {
  entered_ = currentIndex();
  kept_ = value_ = Shown();
  composing_.clear();
  asked_ = unanswered_ = startOver_ = editOn_ = false;
  wheel_ = 0;
}

void CellGrid::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
  QTableView::currentChanged(current, previous);
  setAttribute(Qt::WA_InputMethodEnabled);
  if (filling_) return;
  const QModelIndex cell = ValueCell(current);
  if (cell != current) return setCurrentIndex(cell);
  if (cell == entered_) return;
  editors_.Hide(*this);
  ShowValue();
  EnterCell();
  if (cell.isValid()) emit CurrentCellMoved(cell.row(), cell.column());
}

const CellEditor& CellGrid::Editor() {
  if (!asked_) editor_ = entered_.isValid() ? Choose(entered_.row(), entered_.column()) : CellEditor();
  asked_ = true;
  return editor_;
}

CellEditor CellGrid::Choose(int row, int column) const {
  if (column < model_.LabelColumns()) return {};
  return chooser_ ? chooser_(row, column) : CellEditor{EditorKind::Text, {}};
}

// Labels are never current while there is a value beside them.
QModelIndex CellGrid::ValueCell(const QModelIndex& cell) const {
  const int labels = model_.LabelColumns();
  if (!cell.isValid() || cell.column() >= labels || labels >= model_.columnCount()) return cell;
  return cell.siblingAtColumn(labels);
}

QModelIndex CellGrid::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) {
  return ValueCell(QTableView::moveCursor(action, modifiers));
}

// Labels are as wide as they need, a value alone takes the rest, and several begin as wide as they need.
void CellGrid::FitColumns() {
  const int columns = model_.columnCount();
  if (fitted_ == columns) return;
  fitted_ = RowCount() > 0 ? columns : 0;
  for (int column = 0; column < columns; ++column) {
    const bool label = column < model_.LabelColumns();
    horizontalHeader()->setSectionResizeMode(
        column, label ? QHeaderView::ResizeToContents : QHeaderView::Interactive);
    // A long text would push a value alone out of the view.
    const bool alone = !label && columns - model_.LabelColumns() == 1;
    if (!alone) resizeColumnToContents(column);
  }
}

void CellGrid::FitRows() {
  const int height = fontMetrics().height() + kRowMargin;
  verticalHeader()->setMinimumSectionSize(height);
  verticalHeader()->setDefaultSectionSize(height);
}

}  // namespace morvane::widgets
