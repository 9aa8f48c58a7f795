// A user who answers from a script and remembers every question.
#pragma once

#include <deque>
#include <optional>
#include <string>
#include <vector>

#include "platform/Prompts.h"

namespace morvane::test {

class FakePrompts : public platform::Prompts {
 public:
  struct Box {
    std::string text;
    platform::Buttons buttons;
    std::string title;
  };
  // Scripts, taken from the front. A question without an answer left fails the test and counts as
  // cancelled ("No"); a box with only an OK button needs no script.
  std::deque<platform::Answer> answers;
  std::deque<std::optional<std::string>> inputs;
  std::deque<std::vector<std::string>> files;  // for the three file dialogs and the folder dialog
  std::deque<std::optional<std::uint32_t>> colors;
  std::deque<std::vector<std::string>> picks;

  // Records.
  std::vector<Box> boxes;
  std::vector<std::string> inputPrompts;
  std::vector<platform::FileDialogRequest> requests;
  std::vector<std::vector<std::string>> pickLists;

  // Texts of all boxes so far.
  std::vector<std::string> Texts() const;

  platform::Answer MsgBox(const std::string& text, platform::Buttons buttons = platform::Buttons::Ok,
                          const std::string& title = platform::kApplicationTitle) override;
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
};

}  // namespace morvane::test
