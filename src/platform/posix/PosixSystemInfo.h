// Names of this computer and its user, as the system tells them.
#pragma once

#include "platform/SystemInfo.h"

namespace morvane::platform {

class PosixSystemInfo : public SystemInfo {
 public:
  std::string ComputerNameText() const override;
  std::string UserNameText() const override;
};

}  // namespace morvane::platform
