// A clipboard that nobody else uses.
#pragma once

#include <string>

#include "platform/Clipboard.h"

namespace morvane::test {

class FakeClipboard : public platform::Clipboard {
 public:
  std::string text;

  std::string Text() const override { return text; }
  void SetText(std::string_view value) override { text = value; }
};

}  // namespace morvane::test
