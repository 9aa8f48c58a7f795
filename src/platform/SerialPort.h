// The controller link's one serial line.
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

namespace morvane::platform {

class SerialPort {
 public:
  virtual ~SerialPort() = default;

  // Opens COM<number> with settings such as "38400,n,8,1". Empty when it worked, else why it did not.
  virtual std::string Open(int number, const std::string& settings) = 0;
  virtual bool IsOpen() const = 0;
  // Drops what was not sent yet.
  virtual void Close() = 0;
  // Queues bytes for sending. On a port that failed they are dropped.
  virtual void Output(std::string_view bytes) = 0;
  // Bytes queued and not yet handed to the line.
  virtual std::size_t OutBufferCount() const = 0;
  // Takes up to `most` received bytes.
  virtual std::string Input(std::size_t most) = 0;
  // Empty, or what ended the connection: the port closes itself at its first error of any kind.
  virtual std::string Failure() const = 0;

  // Called for each arrival of data.
  std::function<void()> onReceive;
};

}  // namespace morvane::platform
