#include "controller/Service.h"

#include <poll.h>

#include <chrono>

namespace morvane::controller {
namespace {

constexpr int kSendingRound = 2;  // milliseconds
constexpr int kIdleRound = 20;    // also how soon a host on the terminal is noticed

long Milliseconds() {
  const auto now = std::chrono::steady_clock::now().time_since_epoch();
  return static_cast<long>(std::chrono::duration_cast<std::chrono::milliseconds>(now).count());
}

}  // namespace

Service::Service(const Options& options, const Store& store, WireLog& log)
    : options_(options),
      log_(log),
      faults_(options.faults),
      tcp_("tcp", store, log),
      serial_("pty", store, log) {}

bool Service::Open(std::string& error) {
  if (!options_.address.empty()) {
    if (!port_.Listen(options_.address, error)) return false;
    log_.Note("tcp " + options_.address + ":2000");
  }
  if (options_.terminal) {
    if (!terminal_.Open(options_.link, error)) return false;
    log_.Note("pty " + terminal_.Name());
  }
  log_.Note("ready");
  return true;
}

void Service::Run(int stop) {
  for (;;) {
    // A second host waits in the listener's queue until the first has gone. A descriptor below 0 is skipped.
    pollfd polled[] = {{stop, POLLIN, 0},
                       {tcp_.Attached() ? -1 : port_.Listener(), POLLIN, 0},
                       {tcp_.Descriptor(), tcp_.Events(), 0},
                       {serial_.Descriptor(), serial_.Events(), 0}};
    poll(polled, std::size(polled), tcp_.Sending() || serial_.Sending() ? kSendingRound : kIdleRound);
    if (polled[0].revents) return;
    const long now = Milliseconds();
    ServeTcp(polled[2].revents, polled[1].revents & POLLIN, now);
    if (terminal_.IsOpen()) ServeTerminal(polled[3].revents, now);
  }
}

void Service::ServeTcp(short events, bool waiting, long now) {
  if (!tcp_.Attached()) {
    const int descriptor = waiting ? port_.Accept() : -1;
    if (descriptor >= 0) tcp_.Attach(descriptor, faults_.ForNextConnection(), now);
    return;
  }
  const int descriptor = tcp_.Descriptor();
  const End end = tcp_.Move(events, now);
  if (end == End::None) return;
  if (end == End::Drop) {
    TcpPort::Finish(descriptor);
    tcp_.Discard();
    return;
  }
  tcp_.Detach();
  TcpPort::Close(descriptor, end == End::Reset);
}

void Service::ServeTerminal(short events, long now) {
  if (!serial_.Attached()) {
    if (terminal_.HostIsThere()) serial_.Attach(terminal_.Descriptor(), faults_.ForNextConnection(), now);
    return;
  }
  const End end = serial_.Move(events, now);
  if (end == End::None) return;
  serial_.Detach();
  std::string error;
  if (end != End::Left && !terminal_.Replace(error)) log_.Note(error);
}

}  // namespace morvane::controller
