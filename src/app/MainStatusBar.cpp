#include "app/MainStatusBar.h"

#include <QFontMetrics>
#include <QLabel>
#include <QProgressBar>
#include <QToolButton>

namespace morvane::app {
namespace {

constexpr int kProgressSteps = 1000;
constexpr int kMessageTime = 8000;  // milliseconds

}  // namespace

MainStatusBar::MainStatusBar(context::StatusPanels& panels, QWidget* parent) : QStatusBar(parent) {
  setObjectName("sbStatusBar");
  progress_ = new QProgressBar(this);
  progress_->setObjectName("panelProgress");
  progress_->setMaximumWidth(160);
  progress_->hide();
  addPermanentWidget(progress_);
  mouse_ = new QLabel(this);
  mouse_->setObjectName("panelMouse");
  mouse_->setToolTip(tr("Mouse position on the drawing"));
  mouse_->setMinimumWidth(fontMetrics().horizontalAdvance("-00.000 , -00.000 Side 0"));
  addPermanentWidget(mouse_);
  job_ = AddButton("panelJob", tr("Current job"));
  connection_ = AddButton("panelConnection", tr("Connection to the controller"));
  connect(job_, &QToolButton::clicked, this, &MainStatusBar::JobClicked);
  connect(connection_, &QToolButton::clicked, this, &MainStatusBar::ConnectionClicked);

  connect(&panels, &context::StatusPanels::Changed, this, &MainStatusBar::ShowText);
  connect(&panels, &context::StatusPanels::Told, this,
          [this](const QString& message) { showMessage(message, kMessageTime); });
  connect(&panels, &context::StatusPanels::Progressed, this, &MainStatusBar::ShowProgress);
  connect(&panels, &context::StatusPanels::ProgressEnded, progress_, &QWidget::hide);
}

QToolButton* MainStatusBar::AddButton(const char* name, const QString& toolTip) {
  auto* button = new QToolButton(this);
  button->setObjectName(name);
  button->setToolTip(toolTip);
  button->setAutoRaise(true);
  button->setFocusPolicy(Qt::NoFocus);
  button->setToolButtonStyle(Qt::ToolButtonTextOnly);
  button->setMinimumWidth(fontMetrics().horizontalAdvance("XXXXXXXX.TJB"));
  addPermanentWidget(button);
  return button;
}

void MainStatusBar::ShowText(context::Panel panel, const QString& text) {
  switch (panel) {
    case context::Panel::Job:
      return job_->setText(text);
    case context::Panel::Connection:
      return connection_->setText(text);
    case context::Panel::Mouse:
      return mouse_->setText(text);
  }
}

void MainStatusBar::ShowProgress(qint64 done, qint64 known) {
  progress_->setRange(0, known > 0 ? kProgressSteps : 0);
  if (known > 0) progress_->setValue(static_cast<int>(std::min(done, known) * kProgressSteps / known));
  progress_->show();
}

}  // namespace morvane::app
