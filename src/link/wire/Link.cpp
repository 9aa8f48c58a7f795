#include "link/wire/Link.h"

#include <cmath>

#include "common/RunTimeError.h"

namespace morvane::link {
namespace {

constexpr std::size_t kTransmitBuffer = 4096;
constexpr int kStallMilliseconds = 10000;
constexpr int kPortFailure = 8000;
constexpr int kDrainPause = 1000;
constexpr std::string_view kCheckCommand = "QT7250FILES COMMAND.COM\r\n";
constexpr std::string_view kEndOfReply = "ENDFILE";

}  // namespace

Link::Link(const LinkSources& sources) : sources_(sources) {
  sources_.serial.onReceive = [this] { Receive(); };
  sources_.tcp.onDataArrival = [this] { Receive(); };
  sources_.tcp.onSendProgress = [this](std::size_t, std::size_t remaining) { bytesRemaining_ = remaining; };
  sources_.tcp.onClosed = [this] {
    if (sources_.tcp.State() != platform::TcpState::Connected) sources_.tcp.Close();
  };
  sources_.tcp.onError = [this](const std::string& description) {
    if (!sources_.abort) sources_.prompts.MsgBox("Socket Error: " + description);
  };
}

Link::~Link() {
  sources_.serial.onReceive = nullptr;
  sources_.tcp.onDataArrival = nullptr;
  sources_.tcp.onSendProgress = nullptr;
  sources_.tcp.onClosed = nullptr;
  sources_.tcp.onError = nullptr;
}

// What does not fit stays with the transport, which holds the peer back.
void Link::Receive() {
  while (buffer_.Room() > 0) {
    std::string piece = sources_.serial.IsOpen() ? sources_.serial.Input(buffer_.Room()) : std::string();
    if (piece.empty()) piece = sources_.tcp.GetData(buffer_.Room());
    if (piece.empty()) return;
    buffer_.Append(piece);
  }
}

std::string Link::TakeLine() {
  std::string line = buffer_.TakeLine();
  if (line.empty()) Receive();
  return line;
}

std::string Link::TakeChunk() {
  std::string chunk = buffer_.TakeChunk();
  if (chunk.empty()) Receive();
  return chunk;
}

std::int64_t Link::Now() const {
  return static_cast<std::int64_t>(std::floor(sources_.clock.MonotonicSeconds()));
}

void Link::CheckSerial() const {
  const std::string failure = sources_.serial.Failure();
  if (!failure.empty()) throw common::RunTimeError(kPortFailure, failure);
}

void Link::OpenSerial(int comPort) {
  const std::string failure = sources_.serial.Open(comPort, kSerialSettings);
  if (!failure.empty()) throw common::RunTimeError(kPortFailure, failure);
}

void Link::CloseSerial() {
  if (sources_.serial.IsOpen() && !Aborted()) sources_.clock.Sleep(kCloseDelay);
  CheckSerial();
  sources_.serial.Close();
}

bool Link::ConnectTcp(const std::string& address, bool showMessage) {
  bytesRemaining_ = 0;
  sources_.tcp.Connect(address, kTcpPort);
  const std::int64_t start = Now();
  // The look comes before the time: a window that the user opened may have held up the loop.
  for (bool late = false; !Aborted() && !late; sources_.clock.Sleep(kPoll)) {
    late = Now() - start > kConnectSeconds;
    sources_.clock.DoEvents();
    if (sources_.tcp.State() == platform::TcpState::Connected) return true;
  }
  if (showMessage && !Aborted()) {
    sources_.prompts.MsgBox("Timeout waiting for controller IP=" + address + "\r\n", platform::Buttons::Ok,
                            "Connect");
  }
  sources_.tcp.Close();
  return false;
}

void Link::CloseTcp() {
  sources_.clock.DoEvents();
  if (!Aborted()) sources_.clock.Sleep(kCloseDelay);
  sources_.tcp.Close();
}

void Link::Drop() {
  sources_.serial.Close();
  sources_.tcp.Close();
}

bool Link::SendSerial(std::string_view bytes) {
  CheckSerial();
  sources_.serial.Output(bytes);
  std::size_t last = sources_.serial.OutBufferCount();
  for (int stalled = 0; last > kTransmitBuffer; stalled += kPoll) {
    if (Aborted() || stalled >= kStallMilliseconds) return false;
    sources_.clock.Sleep(kPoll);
    CheckSerial();
    const std::size_t now = sources_.serial.OutBufferCount();
    if (now < last) stalled = 0;
    last = now;
  }
  return !Aborted();
}

// Counted as queued at once: a peer that takes nothing more causes no send progress that would tell of it.
void Link::SendTcp(std::string_view bytes) {
  bytesRemaining_ += bytes.size();
  sources_.tcp.SendData(bytes);
}

bool Link::Post(bool tcp, std::string_view bytes) {
  if (Queued(tcp) > kTransmitBuffer) return false;
  if (tcp) {
    SendTcp(bytes);
  } else {
    sources_.serial.Output(bytes);
  }
  return true;
}

bool Link::Connected(bool tcp) const {
  return tcp ? sources_.tcp.State() == platform::TcpState::Connected : sources_.serial.IsOpen();
}

void Link::CloseHeld(bool tcp) {
  if (tcp) return CloseTcp();
  if (sources_.serial.IsOpen() && !Aborted()) sources_.clock.Sleep(kCloseDelay);
  sources_.serial.Close();
}

std::size_t Link::Queued(bool tcp) const {
  return tcp ? bytesRemaining_ : sources_.serial.OutBufferCount();
}

void Link::Drain(bool tcp) {
  for (int round = 0; round < kDrainRounds && Queued(tcp) > 0 && !Aborted(); ++round) {
    sources_.clock.DoEvents();
    if (!Aborted()) sources_.clock.Sleep(kDrainPause);
  }
  if (Queued(tcp) == 0 || Aborted()) return;
  sources_.prompts.MsgBox(std::to_string(Queued(tcp)) + " bytes stuck in output buffer");
}

void Link::DrainSerial() {
  Drain(false);
}
void Link::DrainTcp() {
  Drain(true);
}

bool Link::RS232ComCheck(int comPort) {
  if (comPort == LinkSettings::kNetwork) return true;
  buffer_.Clear();
  OpenSerial(comPort);
  SendSerial(kCheckCommand);
  bool answered = false;
  std::int64_t last = Now();
  for (bool late = false; !answered && !Aborted() && !late;) {
    late = Now() - last > kCheckSeconds;
    sources_.clock.Sleep(kPoll);
    CheckSerial();
    for (std::string line = TakeLine(); !line.empty() && !answered; line = TakeLine()) {
      last = Now();
      answered = line.compare(0, kEndOfReply.size(), kEndOfReply) == 0;
    }
  }
  CloseSerial();
  return answered;
}

}  // namespace morvane::link
