// The operations of the link through the real adapters against the simulated controller.
#include "support/Simulator.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <filesystem>

#include "link/modComm.h"
#include "platform/posix/PosixFileSystem.h"
#include "platform/qt/QtClock.h"
#include "platform/qt/QtSerialPort.h"
#include "platform/qt/QtTcpClient.h"
#include "support/FakePrompts.h"
#include "support/FakeWaitWindow.h"

namespace morvane::test {
namespace {

// Eight times as fast as the system's, so that pauses and time-outs of seconds do not last.
class QuickClock : public platform::Clock {
 public:
  explicit QuickClock(platform::Operations& operations) : clock_(operations) {}
  platform::DateTime Now() const override { return clock_.Now(); }
  double MonotonicSeconds() const override { return clock_.MonotonicSeconds() * kSpeed; }
  void Sleep(int milliseconds) override { clock_.Sleep(milliseconds / kSpeed); }
  void DoEvents() override { clock_.DoEvents(); }

 private:
  static constexpr int kSpeed = 8;
  platform::QtClock clock_;
};

const std::string kAddress = test::OwnAddress();

struct Host {
  Host(bool network, const Simulator& simulator) {
    settings.Apply({{"Settings", "ComPort", network ? "5" : "3"},
                    {"Settings", "IP", kAddress},
                    {"SerialDevices", "COM3", simulator.Line()}});
    files.EnsureTemp();
  }
  std::string Boxes() const {
    std::string text;
    for (const FakePrompts::Box& box : prompts.boxes) text += box.text + '|';
    return text;
  }

  TempFolder folder;
  platform::PosixFileSystem fileSystem;
  common::Files files{fileSystem, folder.Path(), folder.Path()};
  common::Settings settings{files};
  bool abort = false;
  platform::Operations operations{abort};
  QuickClock clock{operations};
  FakePrompts prompts;
  FakeWaitWindow waitWindow;
  FakeProgress progress;
  platform::QtSerialPort serial{settings};
  platform::QtTcpClient tcp;
  link::Comm comm{{files, settings, clock, prompts, waitWindow, progress, serial, tcp, abort}};
};

// Only the first connection meets the fault; the operation behind it works.
TEST(Simulator, FaultsEndAnOperationAndNotTheNext) {
  const std::string kTimeout = "got\r\n\r\nTimeout waiting for controller|";
  const std::string kReset = "Socket Error: Connection reset by peer|" + kTimeout;
  const std::string kGone = "UploadFile-The serial port is gone|";
  struct Case {
    const char* fault;
    std::string serial;  // boxes; empty: the upload succeeds
    std::string network;
  };
  const Case cases[] = {{"silent-after=9", kTimeout, kTimeout},
                        {"drop-after=30", kGone, kTimeout},
                        {"reset-after=30", kGone, kReset},
                        {"split=3", "", kTimeout},
                        {"double-cr", "", ""},
                        {"garbage=3000", kTimeout, kTimeout},
                        {"flood=1", "", ""}};
  for (const Case& c : cases) {
    for (const bool network : {false, true}) {
      SCOPED_TRACE(std::string(c.fault) + (network ? " tcp" : " serial"));
      Simulator simulator(kAddress, {c.fault, "times=1"});
      ASSERT_TRUE(simulator.ready);
      simulator.machine.Write("A.TXT", "one\r\ntwo\r\n");
      Host host(network, simulator);
      const std::string& boxes = network ? c.network : c.serial;
      EXPECT_EQ(host.comm.UploadFile("QT7250FILE A.TXT", "got"), boxes.empty());
      EXPECT_EQ(host.Boxes(), boxes);
      host.prompts.boxes.clear();
      EXPECT_TRUE(host.comm.UploadFile("QT7250FILE A.TXT", "next"));
      EXPECT_EQ(host.folder.Read("next"), "one\r\ntwo\r\n");
      EXPECT_EQ(host.Boxes(), "");
    }
  }
}

}  // namespace
}  // namespace morvane::test
