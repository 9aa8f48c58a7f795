#include "link/HeldLink.h"

#include <utility>

#include "common/RunTimeError.h"

namespace morvane::link {

HeldLink::HeldLink(Comm& comm, std::function<bool()> release) : comm_(comm), release_(std::move(release)) {}

HeldLink::~HeldLink() {
  if (!holds_) return;
  comm_.Open().Drop();
  comm_.Owner().Release();
}

// Asked by an operation that wants the link.
bool HeldLink::Yield() {
  if (busy_ || !release_ || !release_()) return false;
  Close();
  return true;
}

bool HeldLink::Open() {
  if (busy_ || comm_.Open().Aborted()) return false;
  if (IsOpen()) return true;
  if (!holds_ && !comm_.Owner().Hold([this] { return Yield(); })) return false;
  holds_ = busy_ = true;
  comm_.Open().Drop();
  const bool connected = Connect();
  busy_ = false;
  if (connected) return true;
  // Between two attempts the link is free for others.
  comm_.Open().Drop();
  holds_ = false;
  comm_.Owner().Release();
  return false;
}

bool HeldLink::Connect() {
  Link& link = comm_.Open();
  settings_ = ReadLinkSettings(link.Sources().settings);
  link.Buffer().Clear();
  if (settings_.IsTcp()) return link.ConnectTcp(settings_.ip, true);
  try {
    link.OpenSerial(settings_.comPort);
    return true;
  } catch (const common::RunTimeError&) {
    return false;
  }
}

bool HeldLink::IsOpen() const {
  return holds_ && comm_.Open().Connected(settings_.IsTcp());
}

std::string HeldLink::TakeLine() {
  return holds_ ? comm_.Open().TakeLine() : std::string();
}

std::string HeldLink::TakeChunk() {
  return holds_ ? comm_.Open().TakeChunk() : std::string();
}

bool HeldLink::Send(std::string_view bytes) {
  return !busy_ && IsOpen() && comm_.Open().Post(settings_.IsTcp(), bytes);
}

void HeldLink::Close() {
  if (!holds_ || busy_) return;
  busy_ = true;
  comm_.Open().CloseHeld(settings_.IsTcp());
  busy_ = holds_ = false;
  comm_.Owner().Release();
}

}  // namespace morvane::link
