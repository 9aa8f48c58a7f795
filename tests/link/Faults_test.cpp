// What the link says when it fails, and that the next operation works.
#include <gtest/gtest.h>

#include "link/LinkOwner.h"
#include "support/LinkStation.h"

namespace morvane::link {
namespace {

using test::LinkStation;

// 0: text download, 1: binary download, 2: upload, 3: command, 4: check, 5: timed upload.
bool Operate(Comm& comm, int operation) {
  int timeout = 0;
  switch (operation) {
    case 0:
      return comm.DownloadFile("SEND", "A.TXT");
    case 1:
      return comm.DownloadBinaryFile("SEND", "A.TXT");
    case 2:
      return comm.UploadFile("GET", "B.TXT");
    case 3:
      return comm.SendCommand("RUN");
    case 4:
      return comm.Check();
    default:
      return comm.UploadFileTimed("GET", "B.TXT", timeout);
  }
}

TEST(LinkFaults, AreToldAndTheNextOperationWorks) {
  const std::string kConnect = "Connect: Timeout waiting for controller IP=10.0.0.7\r\n";
  struct Case {
    bool network;
    int operation;
    void (*fault)(LinkStation&);
    bool done;
    std::string boxes;
  };
  const auto busy = [](LinkStation& s) { s.serial.openFailure = "Device or resource busy"; };
  const auto pulled = [](LinkStation& s) { s.serial.pulledAfter = 14; };
  const auto pulledLater = [](LinkStation& s) { s.serial.pulledAfter = 40; };
  const auto pulledAtOnce = [](LinkStation& s) { s.serial.pulledAfter = 1; };
  const auto stuckLine = [](LinkStation& s) { s.serial.stuck = true; };
  const auto deaf = [](LinkStation& s) { s.controller.replies.clear(); };
  const auto missing = [](LinkStation& s) { s.disk.Remove("/base/A.TXT"); };
  const auto full = [](LinkStation& s) { s.disk.faults.bytesLeft = 2; };
  const auto silent = [](LinkStation& s) { s.tcp.answers = false; };
  const auto refused = [](LinkStation& s) { s.tcp.refusal = "Connection refused"; };
  const auto stuck = [](LinkStation& s) { s.tcp.stuck = true; };
  const auto reset = [](LinkStation& s) { s.tcp.resetAfter = 4; };
  const auto large = [](LinkStation& s) { s.disk.Put("/base/A.TXT", std::string(8421505, '\xFF')); };
  const auto noPort = [](LinkStation& s) { s.Set("ComPort=5\r\n"); };
  const Case cases[] = {
      {false, 0, busy, false, "Morvane: DownloadFile-Device or resource busy"},
      {false, 1, busy, false, "Morvane: DownloadBinaryFile-Device or resource busy"},
      {false, 2, busy, false, "Morvane: UploadFile-Device or resource busy"},
      {false, 3, busy, false, "Morvane: SendCommand-Device or resource busy"},
      {false, 5, busy, false, "Morvane: UploadFile-Device or resource busy"},
      {false, 4, busy, false, "Morvane: RS232ComCheck-Device or resource busy"},
      {false, 4, deaf, false, "Morvane: RS232ComCheck-Communication check failed. Check Cable."},
      {false, 4, stuckLine, true, ""},
      {false, 0, deaf, false, "Morvane: DownloadFile-Communication check failed. Check Cable."},
      {false, 0, pulledLater, false, "Morvane: DownloadFile-No such device"},
      {false, 1, pulled, false, "Morvane: DownloadBinaryFile-No such device"},
      {false, 2, pulledAtOnce, false, "Morvane: UploadFile-No such device"},
      {false, 3, pulledAtOnce, false, "Morvane: SendCommand-No such device"},
      {false, 0, missing, false, "Morvane: DownloadFile-File not found"},
      {false, 2, full, false, "Morvane: UploadFile-Disk full"},
      {false, 1, stuckLine, true, "Morvane: 26 bytes stuck in output buffer"},
      {false, 1, large, false, "Morvane: DownloadBinaryFile-Overflow"},
      {true, 0, missing, false, "Morvane: DownloadFileTcp-File not found"},
      {true, 1, missing, false, "Morvane: DownloadBinaryFileTcp-File not found"},
      {true, 1, large, false, "Morvane: DownloadBinaryFileTcp-Overflow"},
      {true, 2, full, false, "Morvane: UploadFileTcp-Disk full"},
      {true, 0, silent, false, kConnect},
      {true, 1, silent, false, kConnect},
      {true, 2, silent, false, kConnect},
      {true, 4, silent, false, kConnect},
      {true, 4, stuck, true, ""},
      {true, 3, refused, false, "Morvane: Socket Error: Connection refused; " + kConnect},
      {true, 3, noPort, false, "Connect: Timeout waiting for controller IP=\r\n"},
      {true, 0, stuck, true, "Morvane: 28 bytes stuck in output buffer"},
      {true, 3, stuck, true, "Morvane: 5 bytes stuck in output buffer"},
      {true, 0, reset, true,
       "Morvane: Socket Error: Connection reset by peer; Morvane: 28 bytes stuck in output buffer"},
  };
  for (const Case& c : cases) {
    LinkStation station(c.network);
    if (c.network && c.fault == +noPort) station.tcp.answers = false;
    station.disk.Put("/base/A.TXT", "some text\r\n\r\n");
    station.controller.replies["GET"] = {"reply\r\nENDFILE\r\n"};
    const auto replies = station.controller.replies;
    c.fault(station);
    EXPECT_EQ(Operate(station.comm, c.operation), c.done) << c.boxes;
    EXPECT_EQ(station.Boxes(), c.boxes);
    EXPECT_FALSE(station.serial.IsOpen());
    EXPECT_EQ(station.tcp.State(), platform::TcpState::Closed);

    station.serial.openFailure.clear();
    station.serial.pulledAfter.reset();
    station.serial.stuck = station.tcp.stuck = false;
    station.tcp.answers = true;
    station.tcp.refusal.clear();
    station.tcp.resetAfter = 0;
    station.disk.faults = {};
    station.controller.replies = replies;
    EXPECT_TRUE(Operate(station.comm, 2)) << c.boxes;
    EXPECT_EQ(station.disk.Get("/base/B.TXT"), "reply\r\n");
  }
}

// The program closes at the first, second, ... wait of each operation: it ends at once and says nothing.
TEST(LinkFaults, AClosingProgramEndsEveryLoop) {
  for (const bool network : {false, true}) {
    for (int operation = 0; operation < 6; ++operation) {
      for (int stage = 1; stage <= 30; ++stage) {
        LinkStation station(network);
        station.disk.Put("/base/A.TXT", std::string(3000, 'x'));
        int waits = 0;
        double closed = -1;
        station.during = [&] {
          if (++waits == stage) station.abort = true, closed = station.clock.seconds;
        };
        const bool done = Operate(station.comm, operation);
        EXPECT_EQ(station.Boxes(), "") << network << operation << ' ' << stage;
        EXPECT_FALSE(station.serial.IsOpen());
        EXPECT_EQ(station.tcp.State(), platform::TcpState::Closed);
        if (closed < 0) continue;
        EXPECT_FALSE(done) << network << operation << ' ' << stage;
        EXPECT_LE(station.clock.seconds, closed + 0.11);
        EXPECT_FALSE(Operate(station.comm, operation));
      }
    }
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
