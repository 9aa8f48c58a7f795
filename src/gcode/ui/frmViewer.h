// The small viewer: the straight moves of a G-code job on a fixed surface.
#pragma once

#include <QWidget>
#include <memory>
#include <string>

namespace morvane::context {
struct AppContext;
}

namespace Ui {
class frmViewer;
}

namespace morvane::gcode {

class frmViewer : public QWidget {
  Q_OBJECT

 public:
  // `name` is a program name.
  frmViewer(const context::AppContext& context, const std::string& name, QWidget* parent = nullptr);
  ~frmViewer() override;

 private:
  void Zoom(float factor);
  void Shift(float widths);
  void chkPenup_Click();

  std::unique_ptr<Ui::frmViewer> ui_;
};

}  // namespace morvane::gcode
