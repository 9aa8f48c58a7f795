// The clipboard of the desktop.
#pragma once

#include "platform/Clipboard.h"

namespace morvane::platform {

// Needs the application object when it is used.
class QtClipboard : public Clipboard {
 public:
  std::string Text() const override;
  void SetText(std::string_view text) override;
};

}  // namespace morvane::platform
