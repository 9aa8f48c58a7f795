#include "controller/Replies.h"

#include <cstdint>

#include "common/text/Text.h"

namespace morvane::controller {
namespace {

constexpr const char* kMarker = "ENDFILE\r\n";
// The marker goes on its own, when the host has stored what came before it: a host that searches block by
// block does not see one that two blocks share.
constexpr long kMarkerPause = 30;  // milliseconds
constexpr long kPausePerKilobyte = 10;
constexpr std::size_t kKilobyte = 1024;

std::string Noise(long count) {
  std::string bytes;
  std::uint32_t state = 1;
  for (long i = 0; i < count; ++i) {
    state = state * 1664525 + 1013904223;
    bytes += static_cast<char>(state >> 24);
  }
  return bytes;
}

// Whoever stores a file under one of these as it stands has written outside the folder it chose.
std::string HostileNames() {
  const std::string names =
      "..\\EVIL.TJB\r\n../EVIL.TJB\r\n/tmp/EVIL.TJB\r\n\\EVIL.TJB\r\nC:\\EVIL.TJB\r\n..\r\n.\r\n"
      "C:EVIL.TJB\r\nSUB\\EVIL.TJB\r\nCON\r\n\r\n \r\nEV\tIL.TJB\r\n%s%n.TJB\r\n-rf\r\n";
  return names + std::string("EV\0IL.TJB\r\n", 11) + std::string(4096, 'A') + ".TJB\r\n";
}

}  // namespace

void Reply(Outbox& out, const Faults& faults, std::string body) {
  if (const auto noise = faults.Get(Fault::Garbage)) return out.Add(Noise(*noise));
  if (const auto megabytes = faults.Get(Fault::Flood)) {
    std::string block;
    while (block.size() < 64 * kKilobyte) block += "No end of this is in sight ...\r\n";
    out.Add(block, 0, *megabytes == 0 ? -1 : *megabytes * 16 - 1);
  }
  std::string marker = faults.Has(Fault::NoMarker) ? "" : kMarker;
  if (faults.Has(Fault::DoubleCr)) {
    body = common::ReplaceAll(body, "\r\n", "\r\r\n");
    marker = common::ReplaceAll(marker, "\r\n", "\r\r\n");
  }
  const long pause = kMarkerPause + kPausePerKilobyte * static_cast<long>(body.size() / kKilobyte);
  out.Add(std::move(body));
  out.Add(std::move(marker), pause);
}

void ReplyNames(Outbox& out, const Faults& faults, const std::vector<std::string>& names) {
  std::string body = faults.Has(Fault::HostileNames) ? HostileNames() : std::string();
  for (const std::string& name : names) body += name + "\r\n";
  Reply(out, faults, std::move(body));
}

}  // namespace morvane::controller
