#include "widgets/prompts/frmUploadFiles.h"

#include "ui_frmUploadFiles.h"
#include "widgets/NotAvailable.h"

namespace morvane::widgets {

frmUploadFiles::frmUploadFiles(const QStringList& entries, QWidget* parent)
    : QDialog(parent), ui_(std::make_unique<Ui::frmUploadFiles>()) {
  ui_->setupUi(this);
  ui_->List1->addItems(entries);
  for (QWidget* button : {ui_->optEditor, ui_->optToolViewer, ui_->optNone}) button->hide();
  MarkNotAvailable(*ui_->optEditor);
  ui_->cmdUpload->setEnabled(false);
  connect(ui_->List1, &QListWidget::itemSelectionChanged, this,
          [this] { ui_->cmdUpload->setEnabled(!ui_->List1->selectedItems().isEmpty()); });
  connect(ui_->List1, &QListWidget::itemDoubleClicked, this, &QDialog::accept);
  connect(ui_->cmdUpload, &QPushButton::clicked, this, &QDialog::accept);
  connect(ui_->cmdCancel, &QPushButton::clicked, this, &QDialog::reject);
}

frmUploadFiles::~frmUploadFiles() = default;

void frmUploadFiles::OfferDisplay() {
  for (QWidget* button : {ui_->optEditor, ui_->optToolViewer, ui_->optNone}) button->show();
}

bool frmUploadFiles::UseToolViewer() const {
  return ui_->optToolViewer->isChecked();
}

QStringList frmUploadFiles::Selected() const {
  QStringList chosen;
  if (result() != Accepted) return chosen;
  for (int row = 0; row < ui_->List1->count(); ++row) {
    if (ui_->List1->item(row)->isSelected()) chosen.push_back(ui_->List1->item(row)->text());
  }
  return chosen;
}

}  // namespace morvane::widgets
