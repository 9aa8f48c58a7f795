#include "gcode/ui/frmGraphic.h"

#include <QButtonGroup>
#include <QPainter>
#include <QToolButton>

#include "common/files/FileNames.h"
#include "context/AppContext.h"
#include "platform/qt/QtCanvas.h"
#include "platform/qt/QtText.h"
#include "ui_frmGraphic.h"
#include "widgets/NotAvailable.h"

namespace morvane::gcode {
namespace {

constexpr int kSwatchSize = 16;  // pixels

// The swatch of the tool that is shown alone bears a dot.
QIcon Swatch(platform::Color color) {
  constexpr int kSize = kSwatchSize * 2;
  constexpr int kLight = 128;
  const QColor fill = platform::ToQt(color);
  QPixmap pixmap(kSize, kSize);
  pixmap.fill(fill);
  QIcon icon(pixmap);
  {
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(qGray(fill.rgb()) < kLight ? Qt::white : Qt::black);
    painter.drawEllipse(pixmap.rect().center() + QPoint(1, 1), kSize / 4, kSize / 4);
  }
  icon.addPixmap(pixmap, QIcon::Normal, QIcon::On);
  return icon;
}

}  // namespace

frmGraphic::frmGraphic(const context::AppContext& context, const std::string& name, QWidget* parent)
    : QWidget(parent), ui_(std::make_unique<Ui::frmGraphic>()), swatches_(new QButtonGroup(this)) {
  ui_->setupUi(this);
  setWindowTitle("Job Viewer - " + platform::ToQt(common::PathFileName(name)));
  AddSwatches();
  widgets::MarkNotAvailable(*ui_->cmdEditTools);
  connect(ui_->chkPenup, &QCheckBox::toggled, this, &frmGraphic::chkPenup_Click);
  connect(ui_->chkShowAllTools, &QCheckBox::toggled, this, &frmGraphic::chkShowAllTools_Click);
  PassOptions& options = ui_->pic->Options();
  options.showRapids = ui_->chkPenup->isChecked();
  options.allTools = ui_->chkShowAllTools->isChecked();
  ui_->pic->Use(context, Viewer::Graphic);
  ui_->pic->OpenFile(name);
}

frmGraphic::~frmGraphic() = default;

void frmGraphic::AddSwatches() {
  constexpr int kColumns = 8;
  QWidget* before = ui_->pic;
  for (int index = 0; index < kToolCount; ++index) {
    auto* button = new QToolButton(this);
    button->setObjectName(QString("picColor%1").arg(index));
    button->setIcon(Swatch(ToolColor(index + 1)));
    button->setIconSize({kSwatchSize, kSwatchSize});
    button->setCheckable(true);
    button->setFocusPolicy(Qt::StrongFocus);
    button->setToolTip(tr("Show tool %1 alone").arg(index + 1));
    button->setAccessibleName(tr("Tool %1").arg(index + 1));
    swatches_->addButton(button, index);
    ui_->swatches->addWidget(button, index / kColumns, index % kColumns);
    setTabOrder(std::exchange(before, button), button);
  }
  swatches_->button(0)->setChecked(true);
  connect(swatches_, &QButtonGroup::idClicked, this, &frmGraphic::picColor_Click);
}

void frmGraphic::picColor_Click(int index) {
  PassOptions& options = ui_->pic->Options();
  options.shownTool = static_cast<std::int16_t>(index + 1);
  // Taking the mark off redraws.
  if (ui_->chkShowAllTools->isChecked()) return ui_->chkShowAllTools->setChecked(false);
  ui_->pic->DrawFile();
}

void frmGraphic::chkShowAllTools_Click() {
  ui_->pic->Options().allTools = ui_->chkShowAllTools->isChecked();
  ui_->pic->DrawFile();
}

void frmGraphic::chkPenup_Click() {
  ui_->pic->Options().showRapids = ui_->chkPenup->isChecked();
  ui_->pic->DrawFile();
}

}  // namespace morvane::gcode
