// What the user copied, shared with the other programs of the desktop.
#pragma once

#include <string>
#include <string_view>

namespace morvane::platform {

// Text is in the core's code page.
class Clipboard {
 public:
  virtual ~Clipboard() = default;
  // Empty when the clipboard holds no text. Characters outside the code page become '?'.
  virtual std::string Text() const = 0;
  virtual void SetText(std::string_view text) = 0;
};

}  // namespace morvane::platform
