#include "textjob/ui/frmReorder.h"

#include <QScopedValueRollback>
#include <QShortcut>
#include <utility>

#include "context/AppContext.h"
#include "platform/qt/QtText.h"
#include "textjob/edit/LineOrder.h"
#include "textjob/job/Selection.h"
#include "textjob/job/TextJob.h"
#include "ui_frmReorder.h"
#include "widgets/Windows.h"

namespace morvane::textjob {

frmReorder::frmReorder(const context::AppContext& context, std::function<void()> changed, QWidget* parent)
    : QDialog(parent), context_(context), changed_(std::move(changed)) {
  Ui::frmReorder ui;
  ui.setupUi(this);
  list_ = ui.List1;
  FillList();
  const auto up = [this] { Move(-1); };
  const auto down = [this] { Move(1); };
  connect(ui.cmdUp, &QPushButton::clicked, this, up);
  connect(ui.cmdDown, &QPushButton::clicked, this, down);
  connect(new QShortcut(Qt::CTRL | Qt::Key_Up, this), &QShortcut::activated, this, up);
  connect(new QShortcut(Qt::CTRL | Qt::Key_Down, this), &QShortcut::activated, this, down);
  connect(ui.cmdExit, &QPushButton::clicked, this, &QDialog::accept);
  connect(list_, &QListWidget::currentRowChanged, this, &frmReorder::List1_Click);
  connect(this, &QDialog::finished, this, [this] { context_.windows.RedrawActiveJob(); });
}

// A selected line is the chosen entry from the start.
void frmReorder::FillList() {
  const QScopedValueRollback<bool> guard(filling_, true);
  for (const std::string& entry : LineEntries(context_.job)) list_->addItem(platform::ToQt(entry));
  const std::vector<std::size_t> selected = SelectedIndices(context_.job);
  if (selected.size() == 1) list_->setCurrentRow(static_cast<int>(selected[0]));
}

void frmReorder::List1_Click(int row) {
  if (!filling_ && row >= 0) context_.windows.SelectJobLine(row);
}

void frmReorder::Move(int way) {
  const int row = list_->currentRow();
  if (row < 0) return;
  const auto index = static_cast<std::size_t>(row);
  if (!(way < 0 ? MoveLineUp(context_.job, index) : MoveLineDown(context_.job, index))) return;
  if (changed_) changed_();
  {
    const QScopedValueRollback<bool> guard(filling_, true);
    list_->insertItem(row + way, list_->takeItem(row));
  }
  list_->setCurrentRow(row + way);
}

}  // namespace morvane::textjob
