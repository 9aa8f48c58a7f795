// Boxes on the command line: told on standard error, answered by --yes or --no.
#pragma once

#include <string>
#include <vector>

#include "platform/Prompts.h"

namespace morvane::cli {

class CliPrompts : public platform::Prompts {
 public:
  explicit CliPrompts(bool yes) : yes_(yes) {}
  // What is taken from the lists that follow, in any case of its letters.
  void Choose(std::string entry) { choice_ = std::move(entry); }

  platform::Answer MsgBox(const std::string& text, platform::Buttons buttons,
                          const std::string& title) override;
  // Nothing can be typed or chosen here but what Choose named: these act as if cancelled.
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
  bool yes_;
  std::string choice_;
};

}  // namespace morvane::cli
