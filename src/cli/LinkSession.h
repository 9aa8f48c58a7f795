// What commands on the controller link need beyond the others: an event loop and the two transports.
#pragma once

#include <QCoreApplication>
#include <string>

#include "cli/Environment.h"
#include "common/files/FileDialogs.h"
#include "link/Wrappers.h"
#include "platform/qt/Operations.h"
#include "platform/qt/QtClock.h"
#include "platform/qt/QtSerialPort.h"
#include "platform/qt/QtTcpClient.h"

namespace morvane::cli {

class LinkSession {
 public:
  // Makes `\Temp\`, where listings lie, and never clears it: the windows may be using it.
  explicit LinkSession(Environment& environment);

  link::Comm& Comm() { return comm_; }
  common::FileDialogs& Dialogs() { return dialogs_; }
  platform::WaitWindow& WaitWindow() { return wait_; }
  const platform::Clock& Clock() const { return clock_; }
  link::WrapperSources Wrappers();

 private:
  // Whoever waits at a command line sees that it has not ended yet.
  struct NoWaitWindow : platform::WaitWindow {
    void Show(const std::string& /*text*/) override {}
    void Close() override {}
  };
  struct NoProgress : platform::Progress {
    void Set(std::int64_t /*done*/, std::int64_t /*known*/) override {}
    void Clear() override {}
  };

  Environment& environment_;
  int count_ = 1;
  std::string name_ = "morvane-cli";
  char* arguments_[2] = {name_.data(), nullptr};
  QCoreApplication application_{count_, arguments_};
  platform::Operations operations_;
  platform::QtClock clock_;
  NoWaitWindow wait_;
  NoProgress progress_;
  common::DialogFolders folders_;
  common::FileDialogs dialogs_;
  platform::QtSerialPort serial_;
  platform::QtTcpClient tcp_;
  link::Comm comm_;
};

}  // namespace morvane::cli
