// Names of this computer and its user, in the core's code page, at most 255 characters.
#pragma once

#include <string>

namespace morvane::platform {

class SystemInfo {
 public:
  virtual ~SystemInfo() = default;
  virtual std::string ComputerNameText() const = 0;
  virtual std::string UserNameText() const = 0;
};

}  // namespace morvane::platform
