// The one TCP connection of the controller link.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

namespace morvane::platform {

enum class TcpState : int { Closed = 0, Connecting = 6, Connected = 7, Closing = 8, Error = 9 };

class TcpClient {
 public:
  virtual ~TcpClient() = default;

  // Starts to connect and returns; `State` tells how it goes.
  virtual void Connect(const std::string& host, int port) = 0;
  virtual TcpState State() const = 0;
  // Drops what was not sent yet. No event comes after it.
  virtual void Close() = 0;
  // Queues bytes for sending. Without a connection they are dropped.
  virtual void SendData(std::string_view bytes) = 0;
  // Takes up to `most` received bytes. What is not taken waits, and holds the peer back.
  virtual std::string GetData(std::size_t most) = 0;

  // Data has arrived.
  std::function<void()> onDataArrival;
  // `remaining` bytes are not yet handed to the network.
  std::function<void(std::size_t sent, std::size_t remaining)> onSendProgress;
  // The peer closed in good order.
  std::function<void()> onClosed;
  std::function<void(const std::string& description)> onError;
};

}  // namespace morvane::platform
