#include "textjob/ui/frmLockImage.h"

#include "common/Attempt.h"
#include "common/files/FileNames.h"
#include "common/files/ImageFiles.h"
#include "common/text/Numbers.h"
#include "context/AppContext.h"
#include "platform/Prompts.h"
#include "platform/qt/QtText.h"
#include "textjob/job/LockImages.h"
#include "ui_frmLockImage.h"
#include "widgets/ListChoice.h"
#include "widgets/UnitLabels.h"

namespace morvane::textjob {

using platform::FromQt;
using platform::ToQt;

frmLockImage::frmLockImage(const context::AppContext& context, std::string job, QWidget* parent)
    : QDialog(parent), context_(context), ui_(std::make_unique<Ui::frmLockImage>()), job_(std::move(job)) {
  ui_->setupUi(this);
  widgets::ShowUnits(*this, context.settings);
  ShowRecord();
  connect(ui_->cmbImage, &QComboBox::activated, this, &frmLockImage::cmbImage_Click);
  connect(ui_->cmdImport, &QPushButton::clicked, this, &frmLockImage::cmdImport_Click);
  connect(ui_->cmdOk, &QPushButton::clicked, this, [this] { Write(false, "cmdOk_Click"); });
  connect(ui_->cmdUnlock, &QPushButton::clicked, this, [this] { Write(true, "cmdUnlock_Click"); });
  connect(ui_->cmdCancel, &QPushButton::clicked, this, &QDialog::reject);
}

frmLockImage::~frmLockImage() = default;

std::array<QLineEdit*, 4> frmLockImage::Fields() const {
  return {ui_->txtImageX, ui_->txtImageY, ui_->txtImageWidth, ui_->txtImageHeight};
}

// The empty entry locks a job to no image.
void frmLockImage::FillList(const std::string& selected) {
  ui_->cmbImage->clear();
  ui_->cmbImage->addItem(QString());
  for (const std::string& name : common::ImageFiles(context_.files)) ui_->cmbImage->addItem(ToQt(name));
  widgets::ShowChoice(*ui_->cmbImage, ToQt(selected));
}

// The job's own, or what the options hold for jobs without one.
void frmLockImage::ShowRecord() {
  LockRecord record;
  record.Job = job_;
  if (FindLockRecord(context_.files, record)) {
    FillList(record.Image);
    const float numbers[] = {record.X, record.Y, record.Width, record.Height};
    for (std::size_t i = 0; i < 4; ++i) Fields()[i]->setText(ToQt(common::PlainNumber(numbers[i])));
    return;
  }
  const common::SettingsSnapshot settings = context_.settings.Read();
  FillList(settings.Get(common::kSettingsSection, "BackgroundImage", ""));
  const std::pair<const char*, const char*> numbers[] = {{"BackgroundImageX", "0"},
                                                         {"BackgroundImageY", "0"},
                                                         {"BackgroundImageWidth", "2"},
                                                         {"BackgroundImageHeight", "2"}};
  for (std::size_t i = 0; i < 4; ++i) {
    const auto& [key, fallback] = numbers[i];
    Fields()[i]->setText(ToQt(settings.Get(common::kSettingsSection, key, fallback)));
  }
}

void frmLockImage::Write(bool remove, const char* procedure) {
  const auto number = [](const QLineEdit* field) { return common::ParseSingle(FromQt(field->text())); };
  const auto [x, y, width, height] = Fields();
  const LockRecord record{common::PathFileName(job_),
                          FromQt(ui_->cmbImage->currentText()),
                          number(x),
                          number(y),
                          number(width),
                          number(height)};
  const auto write = [&] { WriteLockRecord(context_.files, record, remove); };
  if (common::Attempt(context_.prompts, procedure, write)) accept();
}

void frmLockImage::cmbImage_Click() {
  const std::string image = FromQt(ui_->cmbImage->currentText());
  if (image.empty()) return;
  const common::ImageRectangle place = common::ReadImageRectangle(context_.settings, image);
  for (std::size_t i = 0; i < place.size(); ++i) Fields()[i]->setText(ToQt(place[i]));
}

void frmLockImage::cmdImport_Click() {
  common::Attempt(context_.prompts, "cmdImport_Click", [this] {
    const std::string image = common::ImportImage(context_.files, context_.fileDialogs);
    if (image.empty()) return;
    FillList(image);
    cmbImage_Click();
  });
}

}  // namespace morvane::textjob
