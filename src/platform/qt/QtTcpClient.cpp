#include "platform/qt/QtTcpClient.h"

#include <fcntl.h>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <sys/socket.h>
#include <unistd.h>

#include <QNetworkProxy>

#include "platform/qt/QtText.h"

namespace morvane::platform {
namespace {

constexpr qint64 kReadBuffer = 64 * 1024;

// The toolkit reports a reset as it reports an orderly close. The system keeps them apart: a connection
// that the peer closed waits for our close, one that was reset is gone.
bool WasReset(int descriptor) {
  tcp_info info{};
  socklen_t size = sizeof info;
  return getsockopt(descriptor, IPPROTO_TCP, TCP_INFO, &info, &size) == 0 && info.tcpi_state == TCP_CLOSE;
}

}  // namespace

QtTcpClient::QtTcpClient() {
  socket_.setReadBufferSize(kReadBuffer);
  // A machine stands in the same network: what the desktop uses to reach the outside is not for it.
  socket_.setProxy(QNetworkProxy::NoProxy);
  QObject::connect(&socket_, &QTcpSocket::connected, &socket_, [this] {
    watch_ = fcntl(static_cast<int>(socket_.socketDescriptor()), F_DUPFD_CLOEXEC, 0);
  });
  QObject::connect(&socket_, &QTcpSocket::readyRead, &socket_, [this] {
    if (live_ && onDataArrival) onDataArrival();
  });
  QObject::connect(&socket_, &QTcpSocket::bytesWritten, &socket_, [this](qint64 sent) {
    if (live_ && onSendProgress) {
      onSendProgress(static_cast<std::size_t>(sent), static_cast<std::size_t>(socket_.bytesToWrite()));
    }
  });
  QObject::connect(&socket_, &QTcpSocket::errorOccurred, &socket_, [this] { Ended(); });
}

QtTcpClient::~QtTcpClient() {
  Close();
}

void QtTcpClient::Connect(const std::string& host, int port) {
  Close();
  live_ = true;
  if (!host.empty()) socket_.connectToHost(ToQt(host), static_cast<quint16>(port));
}

TcpState QtTcpClient::State() const {
  if (failed_) return TcpState::Error;
  switch (socket_.state()) {
    case QAbstractSocket::UnconnectedState:
      return live_ && socket_.bytesAvailable() > 0 ? TcpState::Closing : TcpState::Closed;
    case QAbstractSocket::ConnectedState:
      return TcpState::Connected;
    case QAbstractSocket::ClosingState:
      return TcpState::Closing;
    default:
      return TcpState::Connecting;
  }
}

void QtTcpClient::Close() {
  live_ = false;
  failed_ = false;
  closed_ = false;
  ++generation_;
  socket_.abort();
  if (watch_ >= 0) close(watch_);
  watch_ = -1;
}

void QtTcpClient::SendData(std::string_view bytes) {
  if (State() == TcpState::Connected) socket_.write(bytes.data(), static_cast<qint64>(bytes.size()));
}

std::string QtTcpClient::GetData(std::size_t most) {
  if (!live_) return {};
  std::string bytes = socket_.read(static_cast<qint64>(most)).toStdString();
  if (closed_ && socket_.bytesAvailable() == 0) Later(&QtTcpClient::TellClosed);
  return bytes;
}

void QtTcpClient::Ended() {
  if (!live_) return;
  const bool byPeer = socket_.error() == QAbstractSocket::RemoteHostClosedError;
  const bool reset = byPeer && watch_ >= 0 && WasReset(watch_);
  if (byPeer && !reset) {
    closed_ = true;
    Later(&QtTcpClient::TellClosed);
    return;
  }
  failed_ = true;
  error_ = reset ? QStringLiteral("Connection reset by peer") : socket_.errorString();
  Later(&QtTcpClient::TellError);
}

// A handler may show a box, which runs events: that must not happen inside the socket's own code.
void QtTcpClient::Later(void (QtTcpClient::*what)()) {
  QMetaObject::invokeMethod(
      &socket_,
      [this, what, generation = generation_] {
        if (live_ && generation == generation_) (this->*what)();
      },
      Qt::QueuedConnection);
}

void QtTcpClient::TellClosed() {
  // Whoever closes at this event would lose what the peer sent before: it comes again when that is taken.
  if (!closed_ || socket_.bytesAvailable() > 0) return;
  closed_ = false;
  if (onClosed) onClosed();
}

void QtTcpClient::TellError() {
  if (onError) onError(FromQt(error_));
}

}  // namespace morvane::platform
