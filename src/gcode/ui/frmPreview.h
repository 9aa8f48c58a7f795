// The panel beside the open dialog of G-code jobs: it shows the selected file as drawing or as text.
#pragma once

#include <QWidget>
#include <memory>
#include <string>

namespace morvane::context {
struct AppContext;
}

namespace Ui {
class frmPreview;
}

namespace morvane::gcode {

class frmPreview : public QWidget {
  Q_OBJECT

 public:
  explicit frmPreview(const context::AppContext& context, QWidget* parent = nullptr);
  ~frmPreview() override;

  // `name` is a program name; an empty one clears drawing and text.
  void ShowFile(const std::string& name);

 private:
  void chkPreview_Click();
  void chkMoves_Click();
  void ShowMode();

  std::unique_ptr<Ui::frmPreview> ui_;
  std::string name_;
};

}  // namespace morvane::gcode
