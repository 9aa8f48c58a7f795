// What the link says when it fails, and to whom it belongs.
#include <gtest/gtest.h>

#include "link/LinkOwner.h"
#include "support/LinkStation.h"

namespace morvane::link {
namespace {

using test::LinkStation;

// 0: text download, 1: binary download, 2: upload, 3: command, 4: check.
bool Operate(Comm& comm, int operation) {
  if (operation == 0) return comm.DownloadFile("SEND", "A.TXT");
  if (operation == 1) return comm.DownloadBinaryFile("SEND", "A.TXT");
  if (operation == 2) return comm.UploadFile("GET", "B.TXT");
  return operation == 3 ? comm.SendCommand("RUN") : comm.Check();
}

TEST(LinkFaults, AreTold) {
  const std::string kConnect = "Connect: Timeout waiting for controller IP=10.0.0.7\r\n";
  using Case = std::tuple<bool, int, void (*)(LinkStation&), bool, std::string>;
  const auto busy = [](LinkStation& s) { s.serial.openFailure = "Device or resource busy"; };
  const auto deaf = [](LinkStation& s) { s.controller.replies.clear(); };
  const auto missing = [](LinkStation& s) { s.disk.Remove("/base/A.TXT"); };
  const auto full = [](LinkStation& s) { s.disk.faults.bytesLeft = 2; };
  const auto silent = [](LinkStation& s) { s.tcp.answers = false; };
  const auto refused = [](LinkStation& s) { s.tcp.refusal = "Connection refused"; };
  const auto stuck = [](LinkStation& s) { s.serial.stuck = s.tcp.stuck = true; };
  const auto reset = [](LinkStation& s) { s.tcp.resetAfter = 4; };
  const auto large = [](LinkStation& s) { s.disk.Put("/base/A.TXT", std::string(8421505, '\xFF')); };
  for (const auto& [network, operation, fault, done, boxes] :
       {Case{false, 0, busy, false, "Morvane: DownloadFile-Device or resource busy"},
        Case{false, 1, busy, false, "Morvane: DownloadBinaryFile-Device or resource busy"},
        Case{false, 2, busy, false, "Morvane: UploadFile-Device or resource busy"},
        Case{false, 3, busy, false, "Morvane: SendCommand-Device or resource busy"},
        Case{false, 4, deaf, false, "Morvane: RS232ComCheck-Communication check failed. Check Cable."},
        Case{false, 4, stuck, true, ""},
        Case{false, 1, stuck, true, "Morvane: 26 bytes stuck in output buffer"},
        Case{false, 1, large, false, "Morvane: DownloadBinaryFile-Overflow"},
        Case{true, 0, missing, false, "Morvane: DownloadFileTcp-File not found"},
        Case{true, 1, large, false, "Morvane: DownloadBinaryFileTcp-Overflow"},
        Case{true, 2, full, false, "Morvane: UploadFileTcp-Disk full"},
        Case{true, 4, silent, false, kConnect}, Case{true, 4, stuck, true, ""},
        Case{true, 3, refused, false, "Morvane: Socket Error: Connection refused; " + kConnect},
        Case{true, 0, reset, true,
             "Morvane: Socket Error: Connection reset by peer; Morvane: 28 bytes stuck in output buffer"}}) {
    LinkStation station(network);
    station.disk.Put("/base/A.TXT", "some text\r\n\r\n");
    station.controller.replies["GET"] = {"reply\r\nENDFILE\r\n"};
    fault(station);
    EXPECT_EQ(Operate(station.comm, operation), done) << boxes;
    EXPECT_EQ(station.Boxes(), boxes);
  }
}

TEST(LinkOwner, HasOneUserAtATime) {
  const std::string kInUse = "Morvane: The link to the machine is in use. Please wait until it is free.";
  LinkStation station(true);
  LinkOwner& owner = station.comm.Owner();
  bool asks = true;
  station.during = [&] {
    if (asks) {
      asks = false;
      EXPECT_FALSE(station.comm.SendCommand("TWO"));
    }
  };
  EXPECT_TRUE(station.comm.SendCommand("ONE"));
  EXPECT_EQ(station.controller.wire, "ONE\r\n");
  EXPECT_EQ(station.Boxes(), kInUse);

  int asked = 0;
  bool yields = false;
  EXPECT_TRUE(owner.Hold([&] { return ++asked, yields; }));
  EXPECT_FALSE(owner.Hold([] { return true; }));
  station.waitWindow.Show("THREE");
  EXPECT_FALSE(station.comm.SendCommand("THREE"));
  EXPECT_FALSE(station.waitWindow.shown);
  EXPECT_EQ(owner.Now(), LinkOwner::State::Held);
  yields = true;
  EXPECT_TRUE(station.comm.SendCommand("FOUR"));
  EXPECT_EQ(asked, 2);
  EXPECT_EQ(station.controller.wire, "ONE\r\nFOUR\r\n");
  EXPECT_EQ(station.Boxes(), kInUse + "; " + kInUse);
  EXPECT_EQ(owner.Now(), LinkOwner::State::Idle);
}

}  // namespace
}  // namespace morvane::link
