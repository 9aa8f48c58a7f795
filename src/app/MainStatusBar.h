// The status bar of the frame: messages, the job, the connection, the mouse position, progress.
#pragma once

#include <QStatusBar>

#include "context/StatusPanels.h"

class QLabel;
class QProgressBar;
class QToolButton;

namespace morvane::app {

class MainStatusBar : public QStatusBar {
  Q_OBJECT

 public:
  explicit MainStatusBar(context::StatusPanels& panels, QWidget* parent = nullptr);

 signals:
  void JobClicked();
  void ConnectionClicked();

 private:
  QToolButton* AddButton(const char* name, const QString& toolTip);
  void ShowText(context::Panel panel, const QString& text);
  void ShowProgress(qint64 done, qint64 known);

  QToolButton* job_;
  QToolButton* connection_;
  QLabel* mouse_;
  QProgressBar* progress_;
};

}  // namespace morvane::app
