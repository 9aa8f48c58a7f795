// The Font Viewer: one character of a stroke font at a time.
#pragma once

#include <QWidget>
#include <memory>
#include <string>

#include "fonts/FontTable.h"

namespace morvane::context {
struct AppContext;
}

namespace Ui {
class frmFontView;
}

namespace morvane::fonts {

class frmFontView : public QWidget {
  Q_OBJECT

 public:
  explicit frmFontView(const context::AppContext& context, QWidget* parent = nullptr);
  ~frmFontView() override;

  // Shows a font from its character 65 on. `name` is a program name.
  void OpenFont(const std::string& name);

 private:
  void cmdOpen_Click();
  void txtJob_Change();
  // To another code, kept within 1 and 255.
  void Step(int codes);
  void DrawCharacter();

  const context::AppContext& context_;
  std::unique_ptr<Ui::frmFontView> ui_;
  FontTable table_;
  int code_;
};

}  // namespace morvane::fonts
