// The serial line of the controller link through the toolkit's serial port.
#pragma once

#include <QSerialPort>
#include <QSocketNotifier>
#include <memory>

#include "common/Settings.h"
#include "platform/SerialPort.h"

namespace morvane::platform {

// COM1 to COM4 are the devices that section `SerialDevices` of the settings names, ttyS0 to ttyS3 without it.
class QtSerialPort : public SerialPort {
 public:
  explicit QtSerialPort(const common::Settings& settings);
  ~QtSerialPort() override;

  std::string Open(int number, const std::string& settings) override;
  bool IsOpen() const override { return port_.isOpen(); }
  void Close() override;
  void Output(std::string_view bytes) override;
  std::size_t OutBufferCount() const override;
  std::string Input(std::size_t most) override;
  std::string Failure() const override { return failure_; }

 private:
  void Fail(const QString& description);

  const common::Settings& settings_;
  QSerialPort port_;
  std::unique_ptr<QSocketNotifier> hangUp_;
  std::string failure_;
};

}  // namespace morvane::platform
