// Title, version and build date of the program.
#pragma once

#include <QDialog>

namespace morvane::app {

class frmAbout : public QDialog {
  Q_OBJECT

 public:
  explicit frmAbout(QWidget* parent = nullptr);
};

}  // namespace morvane::app
