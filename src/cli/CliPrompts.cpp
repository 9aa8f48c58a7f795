#include "cli/CliPrompts.h"

#include <iostream>

#include "common/text/Text.h"

namespace morvane::cli {

platform::Answer CliPrompts::MsgBox(const std::string& text, platform::Buttons buttons,
                                    const std::string& title) {
  using platform::Answer;
  std::string line = common::ReplaceAll(title + ": " + text, "\r\n", "\n");
  line = common::ReplaceAll(common::ReplaceAll(line, "\r", "\n"), "\n", " | ");
  std::cerr << common::ToUtf8(line) << std::endl;
  switch (buttons) {
    case platform::Buttons::Ok:
      return Answer::Ok;
    case platform::Buttons::OkCancel:
      return yes_ ? Answer::Ok : Answer::Cancel;
    case platform::Buttons::YesNo:
      return yes_ ? Answer::Yes : Answer::No;
  }
  return Answer::Cancel;
}

std::optional<std::string> CliPrompts::InputBox(const std::string& prompt, const std::string& title,
                                                const std::string& /*preset*/) {
  MsgBox(prompt, platform::Buttons::Ok, title);
  return std::nullopt;
}

std::string CliPrompts::OpenFile(const platform::FileDialogRequest& /*request*/) {
  return {};
}
std::string CliPrompts::SaveFile(const platform::FileDialogRequest& /*request*/) {
  return {};
}
std::vector<std::string> CliPrompts::OpenFiles(const platform::FileDialogRequest& /*request*/) {
  return {};
}
std::string CliPrompts::ChooseFolder(const std::string& /*title*/, const std::string& /*directory*/) {
  return {};
}
std::optional<std::uint32_t> CliPrompts::ChooseColor(std::uint32_t /*preset*/) {
  return std::nullopt;
}
std::string CliPrompts::PickOne(const std::string& title, const std::vector<std::string>& entries) {
  for (const std::string& entry : entries) {
    if (common::EqualIgnoringCase(entry, choice_)) return entry;
  }
  MsgBox("Not in the list: " + choice_, platform::Buttons::Ok, title);
  return {};
}
std::vector<std::string> CliPrompts::PickMany(const std::string& /*title*/,
                                              const std::vector<std::string>& /*entries*/) {
  return {};
}

}  // namespace morvane::cli
