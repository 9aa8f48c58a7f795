// The machine's network socket: port 2000 of a loopback address.
#pragma once

#include <string>

namespace morvane::controller {

class TcpPort {
 public:
  ~TcpPort();

  // False with `error` when it cannot be had.
  bool Listen(const std::string& address, std::string& error);
  bool Listening() const { return listener_ >= 0; }
  int Listener() const { return listener_; }
  // A descriptor, or -1.
  int Accept() const;

  // Says to the host that nothing more comes.
  static void Finish(int descriptor);
  static void Close(int descriptor, bool reset);

 private:
  int listener_ = -1;
};

}  // namespace morvane::controller
