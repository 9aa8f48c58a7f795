// What the controller link works with.
#pragma once

#include "common/Settings.h"
#include "common/files/Files.h"
#include "platform/Clock.h"
#include "platform/Prompts.h"
#include "platform/SerialPort.h"
#include "platform/TcpClient.h"

namespace morvane::link {

struct LinkSources {
  const common::Files& files;
  const common::Settings& settings;
  platform::Clock& clock;
  platform::Prompts& prompts;
  platform::WaitWindow& waitWindow;
  platform::Progress& progress;
  platform::SerialPort& serial;
  platform::TcpClient& tcp;
  const bool& abort;  // set while the program closes: every loop ends at once, and nothing is shown
};

// Read at the start of every operation.
struct LinkSettings {
  int comPort = 1;  // 1 to 4: serial; 5: network
  std::string ip;

  bool IsTcp() const { return comPort == kNetwork; }
  static constexpr int kNetwork = 5;
};

LinkSettings ReadLinkSettings(const common::Settings& settings);

}  // namespace morvane::link
