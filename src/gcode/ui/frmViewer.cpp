#include "gcode/ui/frmViewer.h"

#include "common/files/FileNames.h"
#include "context/AppContext.h"
#include "platform/qt/QtText.h"
#include "ui_frmViewer.h"

namespace morvane::gcode {

frmViewer::frmViewer(const context::AppContext& context, const std::string& name, QWidget* parent)
    : QWidget(parent), ui_(std::make_unique<Ui::frmViewer>()) {
  ui_->setupUi(this);
  setWindowTitle(platform::ToQt(common::PathFileName(name)));
  connect(ui_->cmdZoomIn, &QPushButton::clicked, this, [this] { Zoom(0.5F); });
  connect(ui_->cmdZoomOut, &QPushButton::clicked, this, [this] { Zoom(2); });
  connect(ui_->cmdLeft, &QPushButton::clicked, this, [this] { Shift(-1); });
  connect(ui_->cmdRight, &QPushButton::clicked, this, [this] { Shift(1); });
  connect(ui_->chkPenup, &QCheckBox::toggled, this, &frmViewer::chkPenup_Click);
  ui_->pic->Options().showRapids = ui_->chkPenup->isChecked();
  ui_->pic->Use(context, Viewer::Small);
  ui_->pic->OpenFile(name);
}

frmViewer::~frmViewer() = default;

void frmViewer::Zoom(float factor) {
  ui_->pic->Surface().view = Zoomed(ui_->pic->Surface().view, factor);
  ui_->pic->DrawFile();
}

void frmViewer::Shift(float widths) {
  ui_->pic->Surface().view = Shifted(ui_->pic->Surface().view, widths);
  ui_->pic->DrawFile();
}

void frmViewer::chkPenup_Click() {
  ui_->pic->Options().showRapids = ui_->chkPenup->isChecked();
  ui_->pic->DrawFile();
}

}  // namespace morvane::gcode
