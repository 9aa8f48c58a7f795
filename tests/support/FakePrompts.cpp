#include "support/FakePrompts.h"

#include <gtest/gtest.h>

namespace morvane::test {

using platform::Answer;
using platform::Buttons;

namespace {

template <typename Answered>
Answered Take(std::deque<Answered>& script, const std::string& question, Answered cancelled) {
  if (script.empty()) {
    ADD_FAILURE() << "no answer scripted for: " << question;
    return cancelled;
  }
  Answered answer = std::move(script.front());
  script.pop_front();
  return answer;
}

std::string FirstOf(const std::vector<std::string>& entries) {
  return entries.empty() ? std::string() : entries.front();
}

}  // namespace

std::vector<std::string> FakePrompts::Texts() const {
  std::vector<std::string> texts;
  for (const Box& box : boxes) texts.push_back(box.text);
  return texts;
}

Answer FakePrompts::MsgBox(const std::string& text, Buttons buttons, const std::string& title) {
  boxes.push_back({text, buttons, title});
  if (buttons == Buttons::Ok) return Answer::Ok;
  return Take(answers, text, buttons == Buttons::YesNo ? Answer::No : Answer::Cancel);
}

std::optional<std::string> FakePrompts::InputBox(const std::string& prompt, const std::string&,
                                                 const std::string&) {
  inputPrompts.push_back(prompt);
  return Take(inputs, prompt, std::optional<std::string>());
}

std::string FakePrompts::OpenFile(const platform::FileDialogRequest& request) {
  return FirstOf(OpenFiles(request));
}

std::string FakePrompts::SaveFile(const platform::FileDialogRequest& request) {
  return FirstOf(OpenFiles(request));
}

std::vector<std::string> FakePrompts::OpenFiles(const platform::FileDialogRequest& request) {
  requests.push_back(request);
  return Take(files, request.title, {});
}

std::string FakePrompts::ChooseFolder(const std::string& title, const std::string& directory) {
  platform::FileDialogRequest request;
  request.title = title;
  request.directory = directory;
  return FirstOf(OpenFiles(request));
}

std::optional<std::uint32_t> FakePrompts::ChooseColor(std::uint32_t) {
  return Take(colors, "a colour", std::optional<std::uint32_t>());
}

std::string FakePrompts::PickOne(const std::string& title, const std::vector<std::string>& entries) {
  return FirstOf(PickMany(title, entries));
}

std::vector<std::string> FakePrompts::PickMany(const std::string& title,
                                               const std::vector<std::string>& entries) {
  pickLists.push_back(entries);
  return Take(picks, title, {});
}

}  // namespace morvane::test
