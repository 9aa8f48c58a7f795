#include "platform/qt/QtSerialPort.h"

#include <poll.h>
#include <sys/ioctl.h>

#include <QHash>
#include <QStringList>

#include "platform/qt/QtText.h"

namespace morvane::platform {
namespace {

// What is not taken stays with the system, which holds back a peer that can wait.
constexpr qint64 kReadBuffer = 64 * 1024;
constexpr int kLastPort = 4;
constexpr const char* kGone = "The serial port is gone";

// "38400,n,8,1": baud, parity, data bits, stop bits.
bool Configure(QSerialPort& port, const std::string& settings) {
  static const QHash<QString, QSerialPort::Parity> parities = {{"n", QSerialPort::NoParity},
                                                               {"e", QSerialPort::EvenParity},
                                                               {"o", QSerialPort::OddParity},
                                                               {"m", QSerialPort::MarkParity},
                                                               {"s", QSerialPort::SpaceParity}};
  static const QHash<QString, QSerialPort::StopBits> stops = {{"1", QSerialPort::OneStop},
                                                              {"2", QSerialPort::TwoStop}};
  const QStringList parts = ToQt(settings).toLower().split(',');
  if (parts.size() != 4 || !parities.contains(parts[1]) || !stops.contains(parts[3])) return false;
  const int baud = parts[0].toInt();
  const int bits = parts[2].toInt();
  return baud > 0 && bits >= 5 && bits <= 8 && port.setBaudRate(baud) && port.setParity(parities[parts[1]]) &&
         port.setDataBits(static_cast<QSerialPort::DataBits>(bits)) && port.setStopBits(stops[parts[3]]) &&
         port.setFlowControl(QSerialPort::NoFlowControl);
}

bool HungUp(const QSerialPort& port) {
  pollfd state{port.handle(), 0, 0};
  return poll(&state, 1, 0) > 0 && (state.revents & (POLLHUP | POLLERR)) != 0;
}

}  // namespace

QtSerialPort::QtSerialPort(const common::Settings& settings) : settings_(settings) {
  port_.setReadBufferSize(kReadBuffer);
  QObject::connect(&port_, &QSerialPort::readyRead, &port_, [this] {
    if (IsOpen() && onReceive) onReceive();
  });
  QObject::connect(&port_, &QSerialPort::errorOccurred, &port_, [this](QSerialPort::SerialPortError error) {
    if (error == QSerialPort::NoError || !IsOpen()) return;
    // The toolkit's words for a line that is gone are those of whatever failed last.
    Fail(HungUp(port_) ? QString(kGone) : port_.errorString());
  });
}

QtSerialPort::~QtSerialPort() {
  Close();
}

std::string QtSerialPort::Open(int number, const std::string& settings) {
  Close();
  failure_.clear();
  if (number < 1 || number > kLastPort) return failure_ = "Invalid port number";
  const std::string device = settings_.GetSetting("SerialDevices", "COM" + std::to_string(number),
                                                  "/dev/ttyS" + std::to_string(number - 1));
  if (!Configure(port_, settings)) return failure_ = "Invalid property value";
  port_.setPortName(ToQt(device));
  if (!port_.open(QIODevice::ReadWrite)) return failure_ = FromQt(port_.errorString());
  // An answer that an earlier operation did not wait for must not be taken for this one's.
  port_.clear(QSerialPort::Input);
  // A line that is gone reads as empty without end; only this tells.
  hangUp_ = std::make_unique<QSocketNotifier>(port_.handle(), QSocketNotifier::Exception);
  QObject::connect(hangUp_.get(), &QSocketNotifier::activated, &port_, [this] { Fail(kGone); });
  return failure_;
}

void QtSerialPort::Close() {
  if (hangUp_) {
    // It may be the one whose signal led here.
    hangUp_->setEnabled(false);
    hangUp_.release()->deleteLater();
  }
  if (port_.isOpen()) port_.close();
}

void QtSerialPort::Fail(const QString& description) {
  failure_ = FromQt(description);
  Close();
}

void QtSerialPort::Output(std::string_view bytes) {
  if (IsOpen()) port_.write(bytes.data(), static_cast<qint64>(bytes.size()));
}

std::size_t QtSerialPort::OutBufferCount() const {
  if (!IsOpen()) return 0;
  int inDriver = 0;
  if (ioctl(port_.handle(), TIOCOUTQ, &inDriver) != 0) inDriver = 0;
  return static_cast<std::size_t>(port_.bytesToWrite() + inDriver);
}

std::string QtSerialPort::Input(std::size_t most) {
  return IsOpen() ? port_.read(static_cast<qint64>(most)).toStdString() : std::string();
}

}  // namespace morvane::platform
