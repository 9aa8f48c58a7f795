#include "widgets/prompts/frmSelect.h"

#include "ui_frmSelect.h"

namespace morvane::widgets {

frmSelect::frmSelect(const QStringList& entries, QWidget* parent) : QDialog(parent) {
  Ui::frmSelect ui;
  ui.setupUi(this);
  list_ = ui.List1;
  select_ = ui.cmdSelect;
  list_->addItems(entries);
  if (list_->count() > 0) list_->setCurrentRow(0);
  connect(list_, &QListWidget::itemSelectionChanged, this,
          [this] { select_->setEnabled(!list_->selectedItems().isEmpty()); });
  connect(list_, &QListWidget::itemDoubleClicked, this, &QDialog::accept);
  connect(ui.cmdSelect, &QPushButton::clicked, this, &QDialog::accept);
  connect(ui.cmdCancel, &QPushButton::clicked, this, &QDialog::reject);
  select_->setEnabled(list_->count() > 0);
}

QStringList frmSelect::Selected() const {
  QStringList chosen;
  if (result() != Accepted) return chosen;
  for (int row = 0; row < list_->count(); ++row) {
    if (list_->item(row)->isSelected()) chosen.push_back(list_->item(row)->text());
  }
  return chosen;
}

}  // namespace morvane::widgets
