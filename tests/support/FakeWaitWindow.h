// A wait window that only keeps what it was told.
#pragma once

#include <string>
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

}  // namespace morvane::test
