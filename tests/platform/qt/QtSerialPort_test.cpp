#include "platform/qt/QtSerialPort.h"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <stdlib.h>
#include <termios.h>
#include <unistd.h>

#include <QTest>

#include "platform/posix/PosixFileSystem.h"
#include "support/TempFolder.h"

namespace morvane::test {
namespace {

constexpr const char* kLine = "38400,n,8,1";

// COM1 is one end of a pseudo-terminal; the other end is `machine`.
class QtSerialPort : public testing::Test {
 protected:
  QtSerialPort() {
    machine = posix_openpt(O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC);
    grantpt(machine);
    unlockpt(machine);
    // As a line that nobody echoes on while no program has it open.
    termios raw{};
    tcgetattr(machine, &raw);
    cfmakeraw(&raw);
    tcsetattr(machine, TCSANOW, &raw);
    settings.Apply({{"SerialDevices", "COM1", ptsname(machine)},
                    {"SerialDevices", "COM2", folder / "missing"},
                    {"SerialDevices", "COM3", "/dev/null"}});
  }
  ~QtSerialPort() override { PullOut(); }
  void PullOut() {
    if (machine >= 0) close(machine);
    machine = -1;
  }
  // What the machine has received by now.
  std::string Received() {
    std::string bytes(1 << 16, '\0');
    const ssize_t count = read(machine, bytes.data(), bytes.size());
    return bytes.substr(0, count < 0 ? 0 : static_cast<std::size_t>(count));
  }

  TempFolder folder;
  platform::PosixFileSystem fileSystem;
  common::Files files{fileSystem, folder.Path()};
  common::Settings settings{files};
  platform::QtSerialPort port{settings};
  int machine = -1;
};

TEST_F(QtSerialPort, EveryByteGoesBothWaysAndAgainAfterClosing) {
  std::string all;
  for (int c = 0; c < 256; ++c) all += static_cast<char>(c);
  std::string taken;
  port.onReceive = [&] { taken += port.Input(100); };
  for (int round = 0; round < 2; ++round) {
    // What came while the port was closed is not for the next operation.
    ASSERT_EQ(port.Open(1, kLine), "");
    port.Output(all);
    std::string there;
    EXPECT_TRUE(QTest::qWaitFor([&] { return (there += Received()).size() == all.size(); }));
    EXPECT_EQ(there, all);
    EXPECT_EQ(port.OutBufferCount(), 0u);
    taken.clear();
    ASSERT_EQ(write(machine, all.data(), all.size()), 256);
    EXPECT_TRUE(QTest::qWaitFor([&] { return (taken += port.Input(1000)).size() == all.size(); }));
    EXPECT_EQ(taken, all);
    port.Close();
    EXPECT_FALSE(port.IsOpen());
    ASSERT_EQ(write(machine, "late", 4), 4);
  }
  EXPECT_EQ(Received(), "");
}

TEST_F(QtSerialPort, APortThatCannotBeOpenedTellsWhy) {
  platform::QtSerialPort other(settings);
  ASSERT_EQ(other.Open(1, kLine), "");
  EXPECT_THAT(port.Open(1, kLine), testing::HasSubstr("locking the device"));
  for (const int number : {0, 2, 3, 5, -1}) {
    const std::string failure = port.Open(number, kLine);
    EXPECT_NE(failure, "") << number;
    EXPECT_EQ(port.Failure(), failure);
    EXPECT_FALSE(port.IsOpen());
  }
  other.Close();
  for (const char* wrong : {"", "38400", "38400,x,8,1", "fast,n,8,1", "38400,n,9,3"}) {
    EXPECT_EQ(port.Open(1, wrong), "Invalid property value") << wrong;
  }
  EXPECT_EQ(port.Open(1, "9600,E,7,2"), "");
  EXPECT_EQ(port.Failure(), "");
}

TEST_F(QtSerialPort, APortThatIsPulledOutClosesOnce) {
  ASSERT_EQ(port.Open(1, kLine), "");
  PullOut();
  EXPECT_TRUE(QTest::qWaitFor([&] { return !port.IsOpen(); }));
  EXPECT_EQ(port.Failure(), "The serial port is gone");
}

}  // namespace
}  // namespace morvane::test
