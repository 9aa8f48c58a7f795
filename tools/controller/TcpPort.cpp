#include "controller/TcpPort.h"

#include <arpa/inet.h>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <sys/socket.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>

namespace morvane::controller {
namespace {

constexpr int kPort = 2000;
constexpr int kWaitingHosts = 8;
constexpr std::uint32_t kLoopback = 127;

}  // namespace

TcpPort::~TcpPort() {
  if (listener_ >= 0) close(listener_);
}

bool TcpPort::Listen(const std::string& address, std::string& error) {
  sockaddr_in place{};
  place.sin_family = AF_INET;
  place.sin_port = htons(kPort);
  if (inet_pton(AF_INET, address.c_str(), &place.sin_addr) != 1 ||
      ntohl(place.sin_addr.s_addr) >> 24 != kLoopback) {
    error = address + " is not a loopback address (127.x.x.x)";
    return false;
  }
  listener_ = socket(AF_INET, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0);
  const int on = 1;
  setsockopt(listener_, SOL_SOCKET, SO_REUSEADDR, &on, sizeof on);
  if (bind(listener_, reinterpret_cast<const sockaddr*>(&place), sizeof place) == 0 &&
      listen(listener_, kWaitingHosts) == 0) {
    return true;
  }
  error = address + ": " + std::strerror(errno);
  return false;
}

int TcpPort::Accept() const {
  const int descriptor = accept4(listener_, nullptr, nullptr, SOCK_NONBLOCK | SOCK_CLOEXEC);
  // Pieces are to arrive as they were sent.
  const int on = 1;
  if (descriptor >= 0) setsockopt(descriptor, IPPROTO_TCP, TCP_NODELAY, &on, sizeof on);
  return descriptor;
}

void TcpPort::Finish(int descriptor) {
  shutdown(descriptor, SHUT_WR);
}

void TcpPort::Close(int descriptor, bool reset) {
  const linger now{1, 0};
  if (reset) setsockopt(descriptor, SOL_SOCKET, SO_LINGER, &now, sizeof now);
  close(descriptor);
}

}  // namespace morvane::controller
