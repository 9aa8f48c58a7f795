// The controls of the options dialog: what each kind of field shows, and the buttons on the pages.
#include <QPainter>
#include <algorithm>

#include "app/options/frmAddMachine.h"
#include "app/options/frmOptions.h"
#include "common/Attempt.h"
#include "common/files/ImageFiles.h"
#include "common/text/Numbers.h"
#include "context/AppContext.h"
#include "link/Machines.h"
#include "platform/Prompts.h"
#include "platform/qt/Operations.h"
#include "platform/qt/PictureStore.h"
#include "platform/qt/QtCanvas.h"
#include "platform/qt/QtText.h"
#include "ui_frmOptions.h"
#include "widgets/ListChoice.h"

namespace morvane::app {

using common::OptionKind;
using platform::FromQt;
using platform::ToQt;

namespace {

constexpr int kPorts = 5;
constexpr std::int32_t kWhite = 0xFFFFFF;

// The digit at the end of a control's name.
int IndexOf(const char* control) {
  return QString(control).back().digitValue();
}

}  // namespace

void frmOptions::ShowField(const common::OptionField& field, const std::string& text) {
  switch (field.kind) {
    case OptionKind::Text:
    case OptionKind::Measure:
      return findChild<QLineEdit*>(field.control)->setText(ToQt(text));
    case OptionKind::List:
      return widgets::ShowChoice(*findChild<QComboBox*>(field.control), ToQt(text));
    case OptionKind::Flag:
      return findChild<QCheckBox*>(field.control)->setChecked(text == "1");
    case OptionKind::Color:
      return ShowColor(IndexOf(field.control),
                       static_cast<std::uint32_t>(std::clamp(common::ParseInt32(text), 0, kWhite)));
    case OptionKind::Port:
      const std::int32_t port = common::ParseInt32(text);
      if (port < 1 || port > kPorts) return;
      return findChild<QRadioButton*>(field.control + QString::number(port - 1))->setChecked(true);
  }
}

std::optional<std::string> frmOptions::FieldText(const common::OptionField& field) const {
  switch (field.kind) {
    case OptionKind::Text:
    case OptionKind::Measure:
      return FromQt(findChild<QLineEdit*>(field.control)->text());
    case OptionKind::List:
      return FromQt(findChild<QComboBox*>(field.control)->currentText());
    case OptionKind::Flag:
      return findChild<QCheckBox*>(field.control)->isChecked() ? "1" : "0";
    case OptionKind::Color:
      return common::PlainNumber(
          static_cast<std::int32_t>(colors_[static_cast<std::size_t>(IndexOf(field.control))]));
    case OptionKind::Port:
      for (int port = 0; port < kPorts; ++port) {
        if (findChild<QRadioButton*>(field.control + QString::number(port))->isChecked()) {
          return common::PlainNumber(std::int32_t{port + 1});
        }
      }
  }
  return std::nullopt;
}

void frmOptions::ShowColor(int index, std::uint32_t color) {
  colors_[static_cast<std::size_t>(index)] = color;
  auto* box = findChild<QPushButton*>("picColor" + QString::number(index));
  QPixmap swatch(box->iconSize() * box->devicePixelRatio());
  swatch.setDevicePixelRatio(box->devicePixelRatio());
  // The edge keeps a colour apart that is like the button's own.
  QPainter painter(&swatch);
  painter.setPen(Qt::gray);
  painter.setBrush(platform::ToQt(color));
  painter.drawRect(QRect(QPoint(), box->iconSize()).adjusted(0, 0, -1, -1));
  painter.end();
  box->setIcon(swatch);
}

void frmOptions::picColor_Click(int index) {
  const auto chosen = context_.prompts.ChooseColor(colors_[static_cast<std::size_t>(index)]);
  if (chosen) ShowColor(index, *chosen);
}

void frmOptions::cmdAdd_Click() {
  frmAddMachine dialog(context_, this);
  {
    const platform::Operations::Scope scope(context_.operations);
    if (dialog.exec() != Accepted) return;
  }
  Write(link::SelectionChanges(dialog.Machine()), "cmdAdd_Click");
  FillMachines();
}

void frmOptions::cmdDelete_Click() {
  if (ui_->cmbNetwork->currentIndex() < 0) return;
  common::Attempt(context_.prompts, "cmdDelete_Click", [this] {
    link::DeleteMachine(context_.settings, FromQt(ui_->cmbNetwork->currentText()));
    FillMachines();
  });
}

void frmOptions::cmbBackground_Click() {
  const std::string image = FromQt(ui_->cmbBackground->currentText());
  if (image.empty()) return;
  const common::ImageRectangle place = common::ReadImageRectangle(context_.settings, image);
  QLineEdit* const fields[] = {ui_->txtImageX, ui_->txtImageY, ui_->txtImageWidth, ui_->txtImageHeight};
  for (std::size_t i = 0; i < place.size(); ++i) fields[i]->setText(ToQt(place[i]));
}

void frmOptions::cmdImport_Click() {
  common::Attempt(context_.prompts, "cmdImport_Click", [this] { ImportImage(); });
}

void frmOptions::ImportImage() {
  const std::string image = common::ImportImage(context_.files, context_.fileDialogs);
  if (image.empty()) return;
  widgets::ShowChoice(*ui_->cmbBackground, ToQt(image));
  ui_->txtImageX->setText("0");
  ui_->txtImageY->setText("0");
  const QSizeF inches = platform::SizeInInches(context_.pictures.Get(image));
  ui_->txtImageWidth->setText(ToQt(common::PlainNumber(static_cast<float>(inches.width()))));
  ui_->txtImageHeight->setText(ToQt(common::PlainNumber(static_cast<float>(inches.height()))));
}

}  // namespace morvane::app
