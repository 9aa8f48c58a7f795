// A user who answers from a script and remembers every question.
#pragma once

#include <gtest/gtest.h>

#include <deque>
#include <string>
#include <vector>

#include "platform/Prompts.h"

namespace morvane::test {

class FakePrompts : public platform::Prompts {
 public:
  using Strings = std::vector<std::string>;
  struct Box {
    std::string text;
    platform::Buttons buttons;
    std::string title;
  };
  // Scripts, taken from the front. A question without an answer left fails the test and counts as
  // cancelled ("No"); a box with only an OK button needs no script.
  std::deque<platform::Answer> answers;
  std::deque<Strings> files;  // what the dialogs for files and folders choose
  std::deque<Strings> picks;  // what is chosen from lists
  std::deque<std::optional<std::uint32_t>> colors;

  // Records.
  std::vector<Box> boxes;
  std::vector<platform::FileDialogRequest> requests;
  std::vector<Strings> lists;

  // Texts of all boxes so far.
  Strings Texts() const {
    Strings texts;
    for (const Box& box : boxes) texts.push_back(box.text);
    return texts;
  }

  platform::Answer MsgBox(const std::string& text, platform::Buttons buttons,
                          const std::string& title) override {
    using platform::Answer;
    boxes.push_back({text, buttons, title});
    if (buttons == platform::Buttons::Ok) return Answer::Ok;
    return Take(answers, text, buttons == platform::Buttons::YesNo ? Answer::No : Answer::Cancel);
  }
  std::string OpenFile(const platform::FileDialogRequest& request) override { return ChooseOne(request); }
  std::string SaveFile(const platform::FileDialogRequest& request) override { return ChooseOne(request); }
  Strings OpenFiles(const platform::FileDialogRequest& request) override {
    requests.push_back(request);
    return Take(files, request.title, {});
  }
  std::string ChooseFolder(const std::string& title, const std::string& directory) override {
    return ChooseOne({title, "", "", "", directory});
  }
  // Nothing asks this yet: it is an unexpected question.
  std::optional<std::string> InputBox(const std::string& prompt, const std::string&,
                                      const std::string&) override {
    return Unexpected(prompt), std::nullopt;
  }
  std::optional<std::uint32_t> ChooseColor(std::uint32_t) override {
    return Take<std::optional<std::uint32_t>>(colors, "colour", std::nullopt);
  }
  std::string PickOne(const std::string& title, const Strings& entries) override {
    const Strings picked = PickMany(title, entries);
    return picked.empty() ? "" : picked.front();
  }
  Strings PickMany(const std::string& title, const Strings& entries) override {
    lists.push_back(entries);
    return Take(picks, title, {});
  }

 private:
  static void Unexpected(const std::string& question) {
    ADD_FAILURE() << "no answer scripted for: " << question;
  }
  template <typename Answered>
  static Answered Take(std::deque<Answered>& script, const std::string& question, Answered cancelled) {
    if (script.empty()) return Unexpected(question), cancelled;
    Answered answer = std::move(script.front());
    script.pop_front();
    return answer;
  }
  std::string ChooseOne(const platform::FileDialogRequest& request) {
    const Strings chosen = OpenFiles(request);
    return chosen.empty() ? std::string() : chosen.front();
  }
};

}  // namespace morvane::test
