#include "gcode/ui/frmPreview.h"

#include "context/AppContext.h"
#include "platform/qt/QtText.h"
#include "ui_frmPreview.h"

namespace morvane::gcode {
namespace {

constexpr std::size_t kMaxText = 1 << 20;  // bytes; a look at the head of a longer job is enough

}  // namespace

frmPreview::frmPreview(const context::AppContext& context, QWidget* parent)
    : QWidget(parent), ui_(std::make_unique<Ui::frmPreview>()) {
  ui_->setupUi(this);
  connect(ui_->optGraphic, &QRadioButton::toggled, this, &frmPreview::ShowMode);
  connect(ui_->chkPreview, &QCheckBox::toggled, this, &frmPreview::chkPreview_Click);
  connect(ui_->chkMoves, &QCheckBox::toggled, this, &frmPreview::chkMoves_Click);
  ui_->pic->Options().showRapids = ui_->chkMoves->isChecked();
  ui_->pic->Use(context, Viewer::Preview);
  ShowMode();
}

frmPreview::~frmPreview() = default;

void frmPreview::ShowFile(const std::string& name) {
  name_ = name;
  // A hidden panel reads nothing.
  const bool shown = ui_->chkPreview->isChecked();
  ui_->pic->OpenFile(shown ? name : std::string());
  ui_->txtGCode->setPlainText(platform::ToQt(ui_->pic->Text().substr(0, kMaxText)));
}

void frmPreview::chkPreview_Click() {
  ShowMode();
  ShowFile(name_);
}

void frmPreview::chkMoves_Click() {
  ui_->pic->Options().showRapids = ui_->chkMoves->isChecked();
  ui_->pic->DrawFile();
}

void frmPreview::ShowMode() {
  const bool shown = ui_->chkPreview->isChecked();
  const bool graphic = ui_->optGraphic->isChecked();
  ui_->pages->setVisible(shown);
  ui_->pages->setCurrentWidget(graphic ? static_cast<QWidget*>(ui_->pic) : ui_->txtGCode);
  ui_->chkMoves->setVisible(shown && graphic);
  ui_->optGraphic->setVisible(shown);
  ui_->optGCode->setVisible(shown);
}

}  // namespace morvane::gcode
