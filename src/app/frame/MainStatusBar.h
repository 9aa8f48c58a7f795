// The status bar of the frame: messages, the job, the connection, the mouse position, progress.
#pragma once

#include <QStatusBar>

#include "context/StatusPanels.h"

class QLabel;
class QProgressBar;
class QToolButton;

namespace morvane::platform {
class Clock;
}

namespace morvane::app {

class MainStatusBar : public QStatusBar {
  Q_OBJECT

 public:
  MainStatusBar(context::StatusPanels& panels, const platform::Clock& clock, QWidget* parent = nullptr);

 signals:
  void JobClicked();
  void ConnectionClicked();

 private:
  QToolButton* AddButton(const char* name, const QString& toolTip);
  void ShowText(context::Panel panel, const QString& text);
  void ShowProgress(qint64 done, qint64 known);
  QString TransferText(qint64 done, qint64 known);
  void EndProgress();

  QToolButton* job_;
  QToolButton* connection_;
  QLabel* mouse_;
  QProgressBar* progress_;
  QLabel* transfer_;
  const platform::Clock& clock_;
  double started_ = 0;  // when the first figure came of what is under way
  qint64 done_ = -1;    // its last figure; -1: nothing is under way
};

}  // namespace morvane::app
