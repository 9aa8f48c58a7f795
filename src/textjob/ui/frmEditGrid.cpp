// The property grid of the editor: rows, their editors, and edits.
#include <QScopedValueRollback>
#include <QToolButton>

#include "common/Settings.h"
#include "context/AppContext.h"
#include "platform/qt/QtText.h"
#include "textjob/edit/FileEditors.h"
#include "textjob/edit/RowEditors.h"
#include "textjob/preview/PreviewState.h"
#include "textjob/preview/RasterCache.h"
#include "textjob/preview/ViewOptions.h"
#include "textjob/ui/frmEdit.h"
#include "ui_frmEdit.h"
#include "widgets/NotAvailable.h"

namespace morvane::textjob {
namespace {

using platform::FromQt;
using platform::ToQt;

constexpr int kValueColumn = 1;

widgets::EditorKind KindOf(RowEditorKind kind) {
  switch (kind) {
    case RowEditorKind::Text:
      return widgets::EditorKind::Text;
    case RowEditorKind::List:
      return widgets::EditorKind::List;
    case RowEditorKind::GcodeFile:
      return widgets::EditorKind::ListWithButton;
    default:
      return widgets::EditorKind::None;
  }
}

}  // namespace

void frmEdit::ConnectGrid() {
  widgets::CellGrid& grid = *ui_->PropertyGrid;
  grid.SetEditorChooser([this](int row, int /*column*/) { return ChooseEditor(row); });
  connect(&grid, &widgets::CellGrid::CellEdited, this,
          [this](int row, int /*column*/, const QString& text) { PropertyGrid_Edited(row, text); });
  connect(&grid, &widgets::CellGrid::CurrentCellMoved, this, [this] { editor_.EnterRow(); });
  connect(&grid, &widgets::CellGrid::StepRequested, this, [this](int row, int /*column*/, int steps) {
    if (editor_.StepRow(static_cast<std::size_t>(row), steps)) DrawJob();
  });
  connect(&grid, &widgets::CellGrid::ButtonPressed, this, &frmEdit::cmdOpenFile_Click);
  widgets::MarkNotAvailable(grid.Editors().FileButton());
}

widgets::CellEditor frmEdit::ChooseEditor(int row) const {
  const PropertyGrid& rows = editor_.Rows();
  if (row < 0 || static_cast<std::size_t>(row) >= rows.size()) return {};
  const RowEditor editor = RowEditorOf(rows[static_cast<std::size_t>(row)].label, context_.files);
  widgets::CellEditor cell{KindOf(editor.kind), {}};
  for (const std::string& choice : editor.choices) cell.choices.append(ToQt(choice));
  return cell;
}

void frmEdit::PropertyGrid_Edited(int row, const QString& text) {
  if (filling_) return;
  if (editor_.CommitRow(static_cast<std::size_t>(row), FromQt(text))) DrawJob();
}

const recipes::Fixture* frmEdit::ShownFixture() const {
  const bool shown = context_.viewOptions.Fixture && context_.previewState.fixture;
  return shown ? &*context_.previewState.fixture : nullptr;
}

RowContext frmEdit::RowsContext() {
  const common::SettingsSnapshot settings = context_.settings.Read();
  RowContext rows;
  rows.unitsFormat = settings.Get(common::kSettingsSection, "UnitsFormat", "0.000");
  rows.proFonts = settings.Get(common::kSettingsSection, "ProFonts", "0") == "1";
  const recipes::Fixture* fixture = ShownFixture();
  rows.sides = fixture != nullptr && fixture->Type == recipes::kFixtureIndex;
  rows.imageSize = [this](const std::string& name) { return RasterSize(context_.files, name); };
  return rows;
}

void frmEdit::ShowRows() {
  const TextJob& job = context_.job;
  editor_.ReadRows(RowsContext());
  std::vector<std::vector<QString>> cells;
  for (const PropertyRow& row : editor_.Rows()) cells.push_back({ToQt(row.label), ToQt(row.value)});
  const QScopedValueRollback<bool> guard(filling_, true);
  // Escape must not bring a value of other lines back.
  if (job.Selection != shownSelection_) ui_->PropertyGrid->StartOver();
  shownSelection_ = job.Selection;
  ui_->PropertyGrid->SetRows(cells);
  ui_->cmdOpenFile->setVisible(HasFileEditor(job));
  KeepChanges();
}

void frmEdit::EditFirstRow() {
  if (ui_->PropertyGrid->RowCount() > 0) ui_->PropertyGrid->SetCurrentCell(0, kValueColumn, true);
}

}  // namespace morvane::textjob
