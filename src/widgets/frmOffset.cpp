#include "widgets/frmOffset.h"

#include "common/Settings.h"
#include "platform/qt/QtText.h"
#include "ui_frmOffset.h"

namespace morvane::widgets {

using platform::FromQt;
using platform::ToQt;

frmOffset::frmOffset(const OffsetRequest& request, const common::Settings& settings, QWidget* parent)
    : QDialog(parent) {
  Ui::frmOffset ui;
  ui.setupUi(this);
  x_ = ui.txtXOffset;
  y_ = ui.txtYOffset;
  depth_ = ui.txtDepthOffset;
  byObject_ = ui.chkOffsetyByObject;
  setWindowTitle(request.title);
  const QString units = ToQt(settings.GetSetting(common::kSettingsSection, "Units", "in"));
  for (QLabel* label : {ui.labXOffset, ui.labYOffset, ui.labDepthOffset}) {
    label->setText(QString("%1 (%2)").arg(label->text(), units));
  }
  x_->setText(ToQt(request.x));
  y_->setText(ToQt(request.y));
  x_->selectAll();
  for (QWidget* widget : {static_cast<QWidget*>(ui.labDepthOffset), static_cast<QWidget*>(depth_)}) {
    widget->setVisible(request.depth);
  }
  byObject_->setVisible(request.byObject);
  connect(ui.cmdOk, &QPushButton::clicked, this, &QDialog::accept);
  connect(ui.cmdCancel, &QPushButton::clicked, this, &QDialog::reject);
}

OffsetTexts frmOffset::Texts() const {
  return {FromQt(x_->text()), FromQt(y_->text()), FromQt(depth_->text()), byObject_->isChecked()};
}

}  // namespace morvane::widgets
