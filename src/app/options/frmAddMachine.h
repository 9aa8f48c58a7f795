// Asks for a network machine and enters it in the settings.
#pragma once

#include <QDialog>
#include <memory>

#include "link/Machines.h"

namespace morvane::context {
struct AppContext;
}

namespace Ui {
class frmAddMachine;
}

namespace morvane::app {

class frmAddMachine : public QDialog {
  Q_OBJECT

 public:
  explicit frmAddMachine(const context::AppContext& context, QWidget* parent = nullptr);
  ~frmAddMachine() override;
  // What was entered, once the dialog was accepted.
  const link::Machine& Machine() const { return machine_; }

 private:
  void cmdAdd_Click();

  const context::AppContext& context_;
  std::unique_ptr<Ui::frmAddMachine> ui_;
  link::Machine machine_;
};

}  // namespace morvane::app
