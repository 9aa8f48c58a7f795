#include "platform/qt/QtTcpClient.h"

#include <gtest/gtest.h>
#include <sys/socket.h>

#include <QElapsedTimer>
#include <QTcpServer>
#include <QTest>

namespace morvane::test {
namespace {

using platform::TcpState;

class QtTcpClient : public testing::Test {
 protected:
  QtTcpClient() {
    server.listen(QHostAddress("127.0.0.71"));
    client.onDataArrival = [this] { taken += client.GetData(takes); };
    client.onSendProgress = [](std::size_t, std::size_t) {};
    client.onClosed = [this] { events += "closed " + std::to_string(static_cast<int>(client.State())); };
    client.onError = [this](const std::string& text) { events += "error: " + text; };
  }

  void Connect() {
    client.Connect("127.0.0.71", server.serverPort());
    EXPECT_EQ(client.State(), TcpState::Connecting);
    ASSERT_TRUE(Until([&] {
      if (peer == nullptr) peer = server.nextPendingConnection();
      return peer != nullptr && client.State() == TcpState::Connected;
    }));
  }
  template <typename Done>
  static bool Until(Done done) {
    QElapsedTimer time;
    for (time.start(); !done() && !time.hasExpired(5000);) QCoreApplication::processEvents();
    return done();
  }
  void Reset() {
    const linger now{1, 0};
    setsockopt(static_cast<int>(peer->socketDescriptor()), SOL_SOCKET, SO_LINGER, &now, sizeof now);
    peer->abort();
  }

  QTcpServer server;
  QTcpSocket* peer = nullptr;
  platform::QtTcpClient client;
  std::size_t takes = 1 << 20;
  std::string taken;
  std::string events;
};

TEST_F(QtTcpClient, AnOrderlyCloseIsNoErrorAndLosesNothing) {
  takes = 0;
  Connect();
  peer->write(QByteArray(300000, 'x'));
  peer->disconnectFromHost();
  EXPECT_FALSE(QTest::qWaitFor([&] { return !events.empty(); }, 100));
  std::size_t count = 0;
  EXPECT_TRUE(Until([&] { return (count += client.GetData(1000).size()) >= 300000; }));
  EXPECT_TRUE(Until([&] { return !events.empty(); }));
  EXPECT_EQ(events, "closed 0");
  client.SendData("nobody");
  EXPECT_EQ(client.GetData(10), "");
}

TEST_F(QtTcpClient, AResetIsAnErrorAndTheNextConnectionWorks) {
  Connect();
  Reset();
  EXPECT_TRUE(Until([&] { return !events.empty(); }));
  EXPECT_EQ(events, "error: Connection reset by peer");
  EXPECT_EQ(client.State(), TcpState::Error);
  peer = nullptr;
  Connect();
}

TEST_F(QtTcpClient, NothingHappensAfterClose) {
  Connect();
  peer->write("late");
  peer->flush();
  client.Close();
  EXPECT_EQ(client.State(), TcpState::Closed);
  peer = nullptr;
  Connect();
  Reset();
  // The reset is seen by the socket, but its event still waits when the connection is closed.
  EXPECT_TRUE(Until([&] { return client.State() == TcpState::Error || !events.empty(); }));
  events.clear();
  client.Close();
  QTest::qWait(50);
  EXPECT_EQ(taken + events, "");
}

TEST_F(QtTcpClient, WhatIsNotTakenHoldsThePeerBack) {
  takes = 0;
  Connect();
  peer->write(QByteArray(20 << 20, 'x'));
  QTest::qWait(200);
  EXPECT_GT(peer->bytesToWrite(), 10 << 20);
  std::size_t count = 0;
  EXPECT_TRUE(Until([&] { return (count += client.GetData(1 << 20).size()) >= 20u << 20; }));
}

}  // namespace
}  // namespace morvane::test
