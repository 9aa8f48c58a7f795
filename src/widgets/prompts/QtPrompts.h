// Message boxes and dialogs of the desktop for the core's questions.
#pragma once

#include <QString>
#include <functional>
#include <map>

#include "platform/Prompts.h"

class QDialog;
class QFileDialog;
class QWidget;

namespace morvane::platform {
class Operations;
}

namespace morvane::widgets {

class QtPrompts : public platform::Prompts {
 public:
  // Makes a panel that shows the dialog's selected file; the dialog takes it.
  using SidePanel = std::function<QWidget*(QFileDialog&)>;

  explicit QtPrompts(platform::Operations& operations) : operations_(operations) {}
  // The station's folder (native): every file dialog leads there, and leaves out its scratch folder.
  void SetStation(const QString& folder) { station_ = folder; }
  // Open dialogs with this default extension (lower case) get a panel at their side.
  void SetSidePanel(const std::string& extension, SidePanel panel) { panels_[extension] = std::move(panel); }

  platform::Answer MsgBox(const std::string& text, platform::Buttons buttons,
                          const std::string& title) override;
  std::optional<std::string> InputBox(const std::string& prompt, const std::string& title,
                                      const std::string& preset) override;
  std::string OpenFile(const platform::FileDialogRequest& request) override;
  std::string SaveFile(const platform::FileDialogRequest& request) override;
  std::vector<std::string> OpenFiles(const platform::FileDialogRequest& request) override;
  std::string ChooseFolder(const std::string& title, const std::string& directory) override;
  std::optional<std::uint32_t> ChooseColor(std::uint32_t preset) override;
  std::string PickOne(const std::string& title, const std::vector<std::string>& entries) override;
  std::vector<std::string> PickMany(const std::string& title,
                                    const std::vector<std::string>& entries) override;

 private:
  // The window that a dialog stands over; null before there is one.
  static QWidget* Owner();
  int Exec(QDialog& dialog);
  void Arrange(QFileDialog& dialog) const;
  void Prepare(QFileDialog& dialog, const platform::FileDialogRequest& request) const;
  void AddSidePanel(QFileDialog& dialog, const std::string& extension) const;
  template <typename Form>
  std::vector<std::string> Pick(const std::string& title, const std::vector<std::string>& entries);

  platform::Operations& operations_;
  QString station_;
  std::map<std::string, SidePanel> panels_;
};

}  // namespace morvane::widgets
