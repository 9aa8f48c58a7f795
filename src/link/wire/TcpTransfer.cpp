#include "link/wire/TcpTransfer.h"

#include <algorithm>
#include <cmath>

#include "link/wire/ByteSum.h"
#include "link/wire/EndMarker.h"
#include "link/wire/LineEnds.h"
#include "link/wire/ReplyFile.h"
#include "link/wire/TcpBlocks.h"

namespace morvane::link {
namespace {

constexpr int kBlockPause = 50;  // milliseconds, behind each block
constexpr int kReplyPause = 3;

// In blocks, each followed by a pause. False when the program closes.
bool SendBlocks(Link& link, std::string_view bytes) {
  TcpBlocks blocks(bytes);
  std::int64_t done = 0;
  for (std::string_view block; !link.Aborted() && blocks.Next(block);) {
    link.SendTcp(block);
    done += static_cast<std::int64_t>(block.size());
    link.Sources().progress.Set(std::min(done, static_cast<std::int64_t>(bytes.size())),
                                static_cast<std::int64_t>(bytes.size()));
    link.Sources().clock.DoEvents();
    link.Sources().clock.Sleep(kBlockPause);
  }
  return !link.Aborted();
}

// The controller needs a time in proportion to the file: 12.5 ms for every 1000 bytes.
int StoringTime(std::size_t length) {
  return static_cast<int>(std::nearbyint(static_cast<double>(length) / 100000 * 1250));
}

bool StoreReply(Link& link, ReplyFile& file, int timeout, bool& timedOut) {
  std::int64_t last = link.Now();
  for (;;) {
    link.Sources().clock.DoEvents();
    link.Sources().clock.Sleep(kReplyPause);
    if (link.Aborted()) return false;
    // What has come counts, however late this looks: a window of the user may have held up the loop.
    const std::string chunk = link.TakeChunk();
    if (chunk.empty()) {
      timedOut = link.Now() - last > timeout;
      if (timedOut) return false;
      continue;
    }
    last = link.Now();
    // One chunk at a time: a marker that is split by the chunking is not seen.
    const std::size_t end = chunk.find(kReplyEnd);
    file.Write(std::string_view(chunk).substr(0, end));
    if (end != std::string::npos) return true;
  }
}

}  // namespace

bool DownloadTcp(Link& link, const std::string& ip, const std::string& command,
                 const std::string& localPath) {
  if (!link.ConnectTcp(ip, true)) return false;
  const std::string bytes = link.Sources().files.Read(localPath);
  if (!bytes.empty()) {
    link.SendTcp(command + "\r\n");
    if (SendBlocks(link, bytes)) link.SendTcp(EndMarker(localPath) + "\r\n");
  }
  link.DrainTcp();
  link.CloseTcp();
  if (!link.Aborted()) link.Sources().clock.Sleep(StoringTime(bytes.size()));
  return !link.Aborted();
}

bool DownloadBinaryTcp(Link& link, const std::string& ip, const std::string& command,
                       const std::string& localPath) {
  if (!link.ConnectTcp(ip, true)) return false;
  const std::string bytes = link.Sources().files.Read(localPath);
  ByteSum sum;
  if (!bytes.empty()) {
    TcpBlocks blocks(bytes);
    for (std::string_view block; blocks.Next(block);) sum.Add(block);
  }
  link.SendTcp(BinaryCommand(command, bytes.size(), sum.Value()));
  if (!bytes.empty()) SendBlocks(link, bytes);
  link.DrainTcp();
  link.CloseTcp();
  if (!link.Aborted()) link.Sources().clock.Sleep(kCloseDelay);
  return !link.Aborted();
}

bool UploadTcp(Link& link, const std::string& ip, const std::string& command, const std::string& localPath,
               int timeout) {
  link.Buffer().Clear();
  bool complete = false;
  if (link.ConnectTcp(ip, true)) {
    link.SendTcp(command + "\r\n");
    ReplyFile file(link.Sources(), localPath);
    bool timedOut = false;
    complete = StoreReply(link, file, timeout, timedOut);
    file.Close();
    if (complete) NormalizeLineEnds(link.Sources().files, localPath);
    if (timedOut) TellTimeout(link.Sources(), localPath);
  }
  link.CloseTcp();
  return complete;
}

bool SendCommandTcp(Link& link, const std::string& ip, const std::string& command) {
  if (!link.ConnectTcp(ip, true)) return false;
  link.SendTcp(command + "\r\n");
  link.DrainTcp();
  link.CloseTcp();
  return !link.Aborted();
}

}  // namespace morvane::link
