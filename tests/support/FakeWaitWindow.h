// Wait window and progress figure that only keep what they were told.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "platform/Prompts.h"

namespace morvane::test {

class FakeWaitWindow : public platform::WaitWindow {
 public:
  bool shown = false;
  std::vector<std::string> texts;

  void Show(const std::string& text) override {
    shown = true;
    texts.push_back(text);
  }
  void Close() override { shown = false; }
};

class FakeProgress : public platform::Progress {
 public:
  bool shown = false;
  std::vector<std::pair<std::int64_t, std::int64_t>> steps;  // done, known

  void Set(std::int64_t done, std::int64_t known) override {
    shown = true;
    steps.emplace_back(done, known);
  }
  void Clear() override { shown = false; }
};

}  // namespace morvane::test
