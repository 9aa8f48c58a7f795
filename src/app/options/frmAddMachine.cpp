#include "app/options/frmAddMachine.h"

#include "common/Attempt.h"
#include "context/AppContext.h"
#include "platform/Prompts.h"
#include "platform/qt/QtText.h"
#include "ui_frmAddMachine.h"

namespace morvane::app {

frmAddMachine::frmAddMachine(const context::AppContext& context, QWidget* parent)
    : QDialog(parent), context_(context), ui_(std::make_unique<Ui::frmAddMachine>()) {
  ui_->setupUi(this);
  connect(ui_->cmdAdd, &QPushButton::clicked, this, &frmAddMachine::cmdAdd_Click);
  connect(ui_->cmdCancel, &QPushButton::clicked, this, &QDialog::reject);
}

frmAddMachine::~frmAddMachine() = default;

void frmAddMachine::cmdAdd_Click() {
  machine_ = {platform::FromQt(ui_->txtMachine->text().trimmed()),
              platform::FromQt(ui_->txtIP->text().trimmed())};
  if (machine_.name.empty() || machine_.address.empty()) {
    context_.prompts.MsgBox("Please enter a Machine Name and IP Address");
    return;
  }
  const auto add = [this] { link::AddMachine(context_.settings, machine_); };
  if (common::Attempt(context_.prompts, "cmdAdd_Click", add)) accept();
}

}  // namespace morvane::app
