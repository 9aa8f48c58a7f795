// The job viewer: a G-code job in the colours of its tools.
#pragma once

#include <QWidget>
#include <memory>
#include <string>

class QButtonGroup;

namespace morvane::context {
struct AppContext;
}

namespace Ui {
class frmGraphic;
}

namespace morvane::gcode {

class frmGraphic : public QWidget {
  Q_OBJECT

 public:
  // `name` is a program name.
  frmGraphic(const context::AppContext& context, const std::string& name, QWidget* parent = nullptr);
  ~frmGraphic() override;

 private:
  void AddSwatches();
  void picColor_Click(int index);
  void chkShowAllTools_Click();
  void chkPenup_Click();

  std::unique_ptr<Ui::frmGraphic> ui_;
  QButtonGroup* swatches_;
};

}  // namespace morvane::gcode
