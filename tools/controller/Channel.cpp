#include "controller/Channel.h"

#include <poll.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <limits>

namespace morvane::controller {
namespace {

constexpr std::size_t kBlock = 4096;
constexpr int kBlocksAtATime = 16;      // so that an endless reply leaves room for everything else
constexpr long kPayloadSilence = 5000;  // milliseconds, until a file that does not go on is given up

}  // namespace

void Channel::Attach(int descriptor, const Faults& faults, long now) {
  descriptor_ = descriptor;
  faults_ = faults;
  discarding_ = false;
  moved_ = 0;
  taken_ = 0;
  heard_ = now;
  machine_.Begin(faults);
}

void Channel::Detach() {
  descriptor_ = -1;
  machine_.Begin({});
}

short Channel::Events() const {
  const auto limit = faults_.Get(Fault::StopReading);
  const bool reads = discarding_ || !limit || taken_ < static_cast<std::size_t>(*limit);
  return static_cast<short>(reads ? POLLIN : POLLRDHUP);
}

// Bytes until the connection is to end.
std::size_t Channel::Allowed(std::size_t most) const {
  if (discarding_) return most;
  for (const Fault fault : {Fault::DropAfter, Fault::ResetAfter}) {
    if (const auto limit = faults_.Get(fault)) {
      most = std::min(most, std::max(moved_, static_cast<std::size_t>(*limit)) - moved_);
    }
  }
  return most;
}

End Channel::Move(short events, long now) {
  if (faults_.Has(Fault::Busy) && !discarding_) return End::Drop;
  if (!Read(events, now) || (!discarding_ && !Write(now))) return End::Left;
  if (machine_.Waiting() && now - heard_ > kPayloadSilence) machine_.Abandon();
  if (Allowed(1) > 0) return End::None;
  return faults_.Has(Fault::ResetAfter) ? End::Reset : End::Drop;
}

// False when the host has left.
bool Channel::Read(short events, long now) {
  if (!(Events() & POLLIN)) return !(events & (POLLRDHUP | POLLHUP | POLLERR));
  if (!(events & (POLLIN | POLLHUP | POLLERR))) return true;
  std::string bytes(kBlock, '\0');
  std::size_t most = Allowed(kBlock);
  if (const auto limit = faults_.Get(Fault::StopReading); limit && !discarding_) {
    most = std::min(most, static_cast<std::size_t>(*limit) - taken_);
  }
  if (most == 0) return true;
  const ssize_t count = read(descriptor_, bytes.data(), most);
  if (count < 0) return errno == EAGAIN || errno == EINTR;
  if (count == 0) return false;
  if (discarding_) return true;
  bytes.resize(static_cast<std::size_t>(count));
  heard_ = now;
  moved_ += bytes.size();
  taken_ += bytes.size();
  log_.Bytes(name_, '>', bytes);
  machine_.Receive(bytes);
  return true;
}

bool Channel::Write(long now) {
  Outbox& out = machine_.Out();
  for (int i = 0; i < kBlocksAtATime; ++i) {
    const std::string_view due = out.Due(now);
    const std::string_view bytes = due.substr(0, Allowed(due.size()));
    if (bytes.empty()) return true;
    const ssize_t count = write(descriptor_, bytes.data(), bytes.size());
    if (count < 0) return errno == EAGAIN || errno == EINTR;
    log_.Bytes(name_, '<', bytes.substr(0, static_cast<std::size_t>(count)));
    moved_ += static_cast<std::size_t>(count);
    out.Sent(static_cast<std::size_t>(count));
  }
  return true;
}

}  // namespace morvane::controller
