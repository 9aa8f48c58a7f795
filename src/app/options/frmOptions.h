// The options dialog: the program's settings on pages, written in one go.
#pragma once

#include <QDialog>
#include <array>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "common/OptionFields.h"
#include "common/Settings.h"

namespace morvane::context {
struct AppContext;
}

namespace Ui {
class frmOptions;
}

namespace morvane::app {

class frmOptions : public QDialog {
  Q_OBJECT

 public:
  explicit frmOptions(const context::AppContext& context, QWidget* parent = nullptr);
  ~frmOptions() override;

 private:
  void Connect();
  void FillLists();
  void FillMachines();
  void ShowField(const common::OptionField& field, const std::string& text);
  // Nothing when no choice has been made.
  std::optional<std::string> FieldText(const common::OptionField& field) const;
  void ShowColor(int index, std::uint32_t color);
  // Puts 1 into a field that is not above 0, and tells it.
  void HoldAboveZero(const char* control, const char* message);
  std::vector<common::SettingChange> Changes() const;
  // False after a message; nothing is written then.
  bool Write(const std::vector<common::SettingChange>& changes, const char* procedure);
  bool Apply();

  void cmdOK_Click();
  void cmdAdd_Click();
  void cmdDelete_Click();
  void cmdImport_Click();
  void ImportImage();
  void cmbBackground_Click();
  void picColor_Click(int index);

  const context::AppContext& context_;
  std::unique_ptr<Ui::frmOptions> ui_;
  std::array<std::uint32_t, 6> colors_{};  // blue x 65536 + green x 256 + red
};

}  // namespace morvane::app
