// The TCP connection of the controller link through the toolkit's socket.
#pragma once

#include <QTcpSocket>

#include "platform/TcpClient.h"

namespace morvane::platform {

class QtTcpClient : public TcpClient {
 public:
  QtTcpClient();
  ~QtTcpClient() override;

  // An empty host is nowhere: the connection just does not come about.
  void Connect(const std::string& host, int port) override;
  // Closing while bytes of a peer that has closed wait to be taken.
  TcpState State() const override;
  void Close() override;
  void SendData(std::string_view bytes) override;
  std::string GetData(std::size_t most) override;

 private:
  void Ended();
  void Later(void (QtTcpClient::*what)());
  void TellClosed();
  void TellError();

  QTcpSocket socket_;
  bool live_ = false;    // between Connect and Close: only then are there events
  bool failed_ = false;  // by anything but an orderly close
  bool closed_ = false;  // the peer closed, and nobody was told yet
  int watch_ = -1;       // a second descriptor of the connection, which outlives the socket's own
  unsigned generation_ = 0;
  QString error_;
};

}  // namespace morvane::platform
