#include "link/HeldLink.h"

#include <gtest/gtest.h>

#include "support/LinkStation.h"

namespace morvane::link {
namespace {

using State = LinkOwner::State;
using test::LinkStation;

const std::string kInUse = "Morvane: The link to the machine is in use. Please wait until it is free.";

TEST(HeldLink, TakesAndSendsUntilItCloses) {
  for (const bool network : {false, true}) {
    LinkStation station(network);
    station.controller.replies["REMOTEON"] = {"one\r\n" + std::string(1030, 'x')};
    HeldLink held(station.comm);
    EXPECT_FALSE(held.Send("KEY=0\r\n"));
    ASSERT_TRUE(held.Open());
    EXPECT_EQ(held.Settings().IsTcp(), network);
    EXPECT_EQ(station.comm.Owner().Now(), State::Held);
    EXPECT_TRUE(held.Send("REMOTEON\r\n"));
    station.clock.Sleep(50);
    EXPECT_TRUE(held.Open());
    EXPECT_EQ(held.TakeLine(), "one\r\n");
    EXPECT_EQ(held.TakeLine(), "");
    EXPECT_EQ(held.TakeChunk().size(), 1024U);
    EXPECT_EQ(held.TakeChunk().size(), 6U);
    EXPECT_FALSE(station.comm.SendCommand("REBOOT"));
    EXPECT_EQ(station.Boxes(), kInUse);
    const double before = station.clock.seconds;
    // Nobody gets in while it closes.
    station.during = [&] { EXPECT_FALSE(held.Open() || held.Send("x") || station.comm.SendCommand("x")); };
    held.Close();
    station.during = nullptr;
    EXPECT_NEAR(station.clock.seconds - before, 1, 0.01);
    EXPECT_EQ(station.controller.wire, "REMOTEON\r\n");
    EXPECT_TRUE(station.comm.SendCommand("REBOOT"));
    // What was received before is gone.
    ASSERT_TRUE(held.Open());
    EXPECT_EQ(held.TakeChunk(), "");
  }
}

// An operation takes the link from its holder; the holder takes it back at its next tick.
TEST(HeldLink, GivesWayToAnOperation) {
  for (const bool network : {false, true}) {
    LinkStation station(network);
    HeldLink* window = nullptr;
    HeldLink held(station.comm, [&] { return window->Send("REMOTEOFF\r\n"); });
    window = &held;
    ASSERT_TRUE(held.Open());
    station.during = [&] {
      if (station.comm.Owner().Now() == State::Operation) {
        EXPECT_FALSE(held.Open() || held.IsOpen());
        EXPECT_EQ(held.TakeLine(), "");
      }
    };
    EXPECT_TRUE(station.comm.SendCommand("REBOOT"));
    station.during = nullptr;
    EXPECT_EQ(station.controller.wire, "REMOTEOFF\r\nREBOOT\r\n");
    EXPECT_EQ(station.Boxes(), "");
    EXPECT_TRUE(held.Open());
  }
}

TEST(HeldLink, SurvivesWhatHappensToItsMachine) {
  struct Case {
    bool network;
    void (*fault)(LinkStation&);
    bool opens;
    std::string boxes;
  };
  const Case cases[] = {
      {false, [](LinkStation& s) { s.serial.openFailure = "Device or resource busy"; }, false, ""},
      {true, [](LinkStation& s) { s.tcp.answers = false; }, false,
       "Connect: Timeout waiting for controller IP=10.0.0.7\r\n"},
      {true, [](LinkStation& s) { s.abort = true; }, false, ""},
      {false, [](LinkStation& s) { s.serial.pulledAfter = 5; }, true, ""},
      {true, [](LinkStation& s) { s.tcp.resetAfter = 5; }, true,
       "Morvane: Socket Error: Connection reset by peer"},
      {true,
       [](LinkStation& s) {
         s.controller.replies["QT"] = {"bye\r\n", 0, 0, false, test::Ending::Closes};
       },
       true, ""},
  };
  for (const Case& c : cases) {
    LinkStation station(c.network);
    c.fault(station);
    {
      HeldLink held(station.comm);
      EXPECT_EQ(held.Open(), c.opens) << c.boxes;
      held.Send("QT7250DIAG\r\n");
      station.clock.Sleep(50);
      EXPECT_FALSE(held.IsOpen());
      EXPECT_FALSE(held.Send("more"));
      EXPECT_EQ(held.TakeLine(), station.controller.replies.count("QT") != 0 ? "bye\r\n" : "");
      EXPECT_EQ(station.Boxes(), c.boxes);
      EXPECT_EQ(station.comm.Owner().Now(), c.opens ? State::Held : State::Idle);
      station.serial.openFailure.clear();
      station.serial.pulledAfter.reset();
      station.tcp.answers = true;
      station.tcp.resetAfter = 0;
      station.abort = false;
      EXPECT_TRUE(held.Open());
    }
    // The window is gone in mid-stream.
    EXPECT_EQ(station.comm.Owner().Now(), State::Idle);
    EXPECT_FALSE(station.serial.IsOpen());
    EXPECT_EQ(station.tcp.State(), platform::TcpState::Closed);
  }
  // A line that takes nothing costs no memory without end.
  for (const bool network : {false, true}) {
    LinkStation station(network);
    station.serial.stuck = station.tcp.stuck = true;
    HeldLink held(station.comm);
    ASSERT_TRUE(held.Open());
    int sent = 0;
    while (sent < 10000 && held.Send("KEY=1\r\n")) ++sent;
    EXPECT_LT(sent, 1000);
  }
}

}  // namespace
}  // namespace morvane::link
