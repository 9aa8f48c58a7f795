// The lines of the editor's job: the list and what its buttons and keys do.
#include <QAction>
#include <QListWidget>
#include <QPushButton>
#include <QToolButton>

#include "context/AppContext.h"
#include "context/StatusPanels.h"
#include "platform/qt/Operations.h"
#include "platform/qt/QtText.h"
#include "textjob/edit/FileEditors.h"
#include "textjob/job/Selection.h"
#include "textjob/job/TextJob.h"
#include "textjob/ui/frmEdit.h"
#include "textjob/ui/frmReorder.h"
#include "ui_frmEdit.h"
#include "widgets/NotAvailable.h"
#include "widgets/frmOffset.h"

namespace morvane::textjob {

void frmEdit::ConnectLines() {
  connect(ui_->cmbLine, &QListWidget::itemSelectionChanged, this, &frmEdit::cmbLine_Click);
  const struct {
    QAbstractButton* button;
    bool (JobEditor::*what)();
  } buttons[] = {{ui_->cmdNewLine, &JobEditor::NewLine},
                 {ui_->cmdDeleteLine, &JobEditor::DeleteLine},
                 {ui_->cmdUndo, &JobEditor::Undo},
                 {ui_->cmdRedo, &JobEditor::Redo}};
  for (const auto& [button, what] : buttons) {
    connect(button, &QAbstractButton::clicked, this, [this, what = what] { Do(what); });
  }
  connect(ui_->cmdReorder, &QPushButton::clicked, this, &frmEdit::cmdReorder_Click);
  ui_->cmdUndo->setArrowType(Qt::LeftArrow);
  ui_->cmdRedo->setArrowType(Qt::RightArrow);
  // Kept in its place while it is hidden, so that nothing jumps from line to line.
  QSizePolicy keepsPlace = ui_->cmdOpenFile->sizePolicy();
  keepsPlace.setRetainSizeWhenHidden(true);
  ui_->cmdOpenFile->setSizePolicy(keepsPlace);
  widgets::MarkNotAvailable(*ui_->cmdOpenFile);

  AddAction("actUndo", tr("Undo"), QKeySequence::keyBindings(QKeySequence::Undo), &JobEditor::Undo);
  AddAction("actRedo", tr("Redo"), {QKeySequence("Ctrl+Y"), QKeySequence("Ctrl+Shift+Z")}, &JobEditor::Redo);
  AddAction("actCut", tr("Cut Lines"), {QKeySequence("Ctrl+X")}, &JobEditor::Cut);
  AddAction("actCopy", tr("Copy Lines"), {QKeySequence("Ctrl+C")}, &JobEditor::Copy);
  AddAction("actPaste", tr("Paste Lines"), {QKeySequence("Ctrl+V")}, &JobEditor::Paste);
  AddAction("actDuplicate", tr("Duplicate Lines"), {QKeySequence("Ctrl+D")}, &JobEditor::Duplicate);
  ui_->cmbLine->setContextMenuPolicy(Qt::ActionsContextMenu);
  ui_->cmbLine->addActions(actions());
}

void frmEdit::AddAction(const char* name, const QString& caption, const QList<QKeySequence>& keys,
                        bool (JobEditor::*what)()) {
  auto* action = new QAction(caption, this);
  action->setObjectName(name);
  action->setShortcuts(keys);
  action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
  connect(action, &QAction::triggered, this, [this, what] { Do(what); });
  addAction(action);
}

void frmEdit::Do(bool (JobEditor::*what)()) {
  if (!(editor_.*what)()) return;
  // Other lines may stand under the same numbers: Escape must not bring a value of the former ones.
  ui_->PropertyGrid->StartOver();
  DrawJob();
}

void frmEdit::cmbLine_Click() {
  if (filling_) return;
  std::vector<int> lines;
  for (int row = 0; row < ui_->cmbLine->count(); ++row) {
    if (ui_->cmbLine->item(row)->isSelected()) lines.push_back(row);
  }
  editor_.Select(SelectLines(lines));
  DrawJob();
}

void frmEdit::SelectLine(int index) {
  editor_.Select(SelectLines({index}));
  DrawJob();
}

void frmEdit::cmdReorder_Click() {
  const platform::Operations::Scope scope(context_.operations, this);
  frmReorder reorder(
      context_, [this] { editor_.Reordered(); }, this);
  reorder.exec();
}

void frmEdit::OffsetJob() {
  const platform::Operations::Scope scope(context_.operations, this);
  widgets::OffsetRequest request;
  request.title = SelectedIndices(context_.job).size() > 1 ? tr("Offset TJB Group") : tr("Offset TJB File");
  request.depth = true;
  widgets::frmOffset dialog(request, context_.settings, this);
  if (dialog.exec() != QDialog::Accepted) return;
  const widgets::OffsetTexts by = dialog.Texts();
  if (!editor_.Offset(by.x, by.y, by.depth)) return;
  RefreshLockButton();
  DrawJob();
}

// The editors that would open come with their recipes.
void frmEdit::cmdOpenFile_Click() {
  if (HasFileEditor(context_.job)) context_.statusPanels.Tell(widgets::kNotAvailable);
}

void frmEdit::KeepChanges() {
  ui_->cmdUndo->setEnabled(editor_.CanUndo());
  ui_->cmdRedo->setEnabled(editor_.CanRedo());
  context_.recovery.Touch(context_.job, document_.Name());
  const auto due = context_.recovery.DueIn();
  if (due) {
    copyDue_.start(static_cast<int>(*due * 1000) + 1);
  } else {
    copyDue_.stop();
  }
}

}  // namespace morvane::textjob
