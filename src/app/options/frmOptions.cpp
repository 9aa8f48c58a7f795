#include "app/options/frmOptions.h"

#include "common/Attempt.h"
#include "common/files/ImageFiles.h"
#include "common/text/Numbers.h"
#include "common/text/Text.h"
#include "context/AppContext.h"
#include "link/Machines.h"
#include "platform/Prompts.h"
#include "platform/qt/PictureStore.h"
#include "platform/qt/QtText.h"
#include "ui_frmOptions.h"
#include "widgets/UnitLabels.h"
#include "widgets/Windows.h"

namespace morvane::app {

using common::kSettingsSection;
using platform::FromQt;
using platform::ToQt;

frmOptions::frmOptions(const context::AppContext& context, QWidget* parent)
    : QDialog(parent), context_(context), ui_(std::make_unique<Ui::frmOptions>()) {
  ui_->setupUi(this);
  FillLists();
  const common::SettingsSnapshot settings = context.settings.Read();
  for (const common::OptionField& field : common::OptionFields()) {
    ShowField(field, settings.Get(kSettingsSection, field.key, field.fallback));
  }
  FillMachines();
  widgets::ShowUnits(*this, context_.settings);
  Connect();
}

frmOptions::~frmOptions() = default;

void frmOptions::Connect() {
  connect(ui_->cmdOK, &QPushButton::clicked, this, &frmOptions::cmdOK_Click);
  connect(ui_->cmdApply, &QPushButton::clicked, this, &frmOptions::Apply);
  connect(ui_->cmdCancel, &QPushButton::clicked, this, &QDialog::reject);
  connect(ui_->cmdAdd, &QPushButton::clicked, this, &frmOptions::cmdAdd_Click);
  connect(ui_->cmdDelete, &QPushButton::clicked, this, &frmOptions::cmdDelete_Click);
  connect(ui_->cmdImport, &QPushButton::clicked, this, &frmOptions::cmdImport_Click);
  connect(ui_->cmbBackground, &QComboBox::activated, this, &frmOptions::cmbBackground_Click);
  for (int index = 0; index < static_cast<int>(colors_.size()); ++index) {
    connect(findChild<QPushButton*>("picColor" + QString::number(index)), &QPushButton::clicked, this,
            [this, index] { picColor_Click(index); });
  }
}

// The empty entry stands for no file.
void frmOptions::FillLists() {
  const std::pair<QComboBox*, std::vector<std::string>> lists[] = {
      {ui_->cmbBackground, common::ImageFiles(context_.files)},
      {ui_->cmbFixture, context_.files.List("*.FIX")},
      {ui_->cmbProduction, context_.files.List("*.PRD")}};
  for (const auto& [list, names] : lists) {
    list->addItem(QString());
    for (const std::string& name : names) list->addItem(ToQt(name));
  }
}

void frmOptions::FillMachines() {
  const common::SettingsSnapshot settings = context_.settings.Read();
  const std::string selected = settings.Get(kSettingsSection, "Machine", "");
  ui_->cmbNetwork->clear();
  int current = -1;
  for (const link::Machine& machine : link::Machines(settings)) {
    if (current < 0 && common::EqualIgnoringCase(machine.name, selected)) current = ui_->cmbNetwork->count();
    ui_->cmbNetwork->addItem(ToQt(link::MachineEntry(machine)));
  }
  ui_->cmbNetwork->setCurrentIndex(current);
  ui_->cmdDelete->setEnabled(ui_->cmbNetwork->count() > 0);
}

void frmOptions::HoldAboveZero(const char* control, const char* message) {
  auto* field = findChild<QLineEdit*>(control);
  if (common::ParseNumber(FromQt(field->text())) > 0) return;
  context_.prompts.MsgBox(message);
  field->setText("1");
}

std::vector<common::SettingChange> frmOptions::Changes() const {
  std::vector<common::SettingChange> changes;
  for (const common::OptionField& field : common::OptionFields()) {
    const std::optional<std::string> text = FieldText(field);
    if (text) changes.push_back({std::string(kSettingsSection), field.key, *text});
  }
  const auto add = [&](const std::vector<common::SettingChange>& more) {
    changes.insert(changes.end(), more.begin(), more.end());
  };
  if (ui_->cmbNetwork->currentIndex() >= 0) {
    add(link::SelectionChanges(
        link::FindMachine(context_.settings.Read(), FromQt(ui_->cmbNetwork->currentText()))));
  }
  add(common::ImageRectangleChanges(
      FromQt(ui_->cmbBackground->currentText()),
      {FromQt(ui_->txtImageX->text()), FromQt(ui_->txtImageY->text()), FromQt(ui_->txtImageWidth->text()),
       FromQt(ui_->txtImageHeight->text())}));
  return changes;
}

bool frmOptions::Write(const std::vector<common::SettingChange>& changes, const char* procedure) {
  return common::Attempt(context_.prompts, procedure, [&] { context_.settings.Apply(changes); });
}

bool frmOptions::Apply() {
  HoldAboveZero("txtEditorHeight", "The editor height must be greater than 0, setting to 1");
  HoldAboveZero("txtEditorWidth", "The editor width must be greater than 0, setting to 1");
  if (!Write(Changes(), "cmdApply_Click")) return false;
  widgets::ShowUnits(*this, context_.settings);
  context_.windows.RedrawActiveJob();
  return true;
}

void frmOptions::cmdOK_Click() {
  if (Apply()) accept();
}

}  // namespace morvane::app
