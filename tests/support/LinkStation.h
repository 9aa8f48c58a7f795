// A base directory in memory, a link whose controller is a script, and a user who is one.
#pragma once

#include <functional>
#include <string>

#include "link/modComm.h"
#include "support/BaseStation.h"
#include "support/FakeLinks.h"
#include "support/FakeWaitWindow.h"

namespace morvane::test {

struct LinkStation : BaseStation {
  explicit LinkStation(bool network) {
    disk.Put("/tmp/run.ret", "");
    disk.Put("/base/Temp/x", "");
    Set(network ? "ComPort=5\r\nIP=10.0.0.7\r\n" : "ComPort=2\r\n");
    controller.replies["QT7250FILES COMMAND.COM"] = {"COMMAND.COM\r\nENDFILE\r\n"};
    clock.onWait = [this](int) {
      if (during) during();
      serial.Pump();
      tcp.Pump();
    };
  }
  void Set(const std::string& lines) { disk.Put("/base/Morvane.ini", "[Settings]\r\n" + lines); }
  // All boxes as "title: text", with "; " between them.
  std::string Boxes() const {
    std::string text;
    for (const FakePrompts::Box& box : prompts.boxes)
      text += (text.empty() ? "" : "; ") + box.title + ": " + box.text;
    return text;
  }

  FakeWaitWindow waitWindow;
  FakeProgress progress;
  FakeController controller{clock};
  FakeSerialPort serial{controller};
  FakeTcpClient tcp{controller};
  bool abort = false;
  std::function<void()> during;  // in each wait
  link::Comm comm{{files, settings, clock, prompts, waitWindow, progress, serial, tcp, abort}};
};

}  // namespace morvane::test
