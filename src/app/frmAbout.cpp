#include "app/frmAbout.h"

#include "app/Version.h"
#include "ui_frmAbout.h"

namespace morvane::app {

frmAbout::frmAbout(QWidget* parent) : QDialog(parent) {
  Ui::frmAbout ui;
  ui.setupUi(this);
  ui.lblTitle->setText(kTitle);
  ui.lblVersion->setText(tr("Version %1").arg(VersionText()));
  ui.lblBuildDate->setText(tr("Built on %1").arg(BuildDate()));
  connect(ui.cmdOK, &QPushButton::clicked, this, &QDialog::accept);
}

}  // namespace morvane::app
