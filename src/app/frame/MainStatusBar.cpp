#include "app/frame/MainStatusBar.h"

#include <QFontMetrics>
#include <QLabel>
#include <QLocale>
#include <QProgressBar>
#include <QToolButton>

#include "platform/Clock.h"

namespace morvane::app {
namespace {

constexpr int kProgressSteps = 1000;
constexpr int kMessageTime = 8000;  // milliseconds
constexpr double kMeasured = 0.2;   // seconds before a rate means something

}  // namespace

MainStatusBar::MainStatusBar(context::StatusPanels& panels, const platform::Clock& clock, QWidget* parent)
    : QStatusBar(parent), clock_(clock) {
  setObjectName("sbStatusBar");
  transfer_ = new QLabel(this);
  transfer_->setObjectName("panelTransfer");
  transfer_->hide();
  addPermanentWidget(transfer_);
  progress_ = new QProgressBar(this);
  progress_->setObjectName("panelProgress");
  progress_->setMaximumWidth(160);
  progress_->setTextVisible(false);
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
  connect(&panels, &context::StatusPanels::ProgressEnded, this, &MainStatusBar::EndProgress);
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

// Bytes done of bytes known, and the rate once there is something to measure.
QString MainStatusBar::TransferText(qint64 done, qint64 known) {
  const double now = clock_.MonotonicSeconds();
  if (done < done_ || done_ < 0) started_ = now;  // the next file
  done_ = done;
  if (done <= 0 && known <= 0) return {};
  const QLocale locale;
  QString text = known > 0 ? tr("%1 of %2 bytes").arg(locale.toString(done), locale.toString(known))
                           : tr("%1 bytes").arg(locale.toString(done));
  const double seconds = now - started_;
  if (seconds < kMeasured) return text;
  return text + tr(", %1 KB/s").arg(locale.toString(static_cast<double>(done) / 1000 / seconds, 'f', 1));
}

void MainStatusBar::ShowProgress(qint64 done, qint64 known) {
  transfer_->setText(TransferText(done, known));
  transfer_->setVisible(!transfer_->text().isEmpty());
  progress_->setRange(0, known > 0 ? kProgressSteps : 0);
  if (known > 0) progress_->setValue(static_cast<int>(std::min(done, known) * kProgressSteps / known));
  progress_->show();
}

void MainStatusBar::EndProgress() {
  done_ = -1;
  transfer_->hide();
  progress_->hide();
}

}  // namespace morvane::app
