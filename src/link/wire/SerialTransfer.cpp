#include "link/wire/SerialTransfer.h"

#include <algorithm>

#include "common/RunTimeError.h"
#include "common/text/Lines.h"
#include "common/text/Text.h"
#include "link/wire/ByteSum.h"
#include "link/wire/EndMarker.h"
#include "link/wire/LineEnds.h"
#include "link/wire/ReplyFile.h"

namespace morvane::link {
namespace {

constexpr int kLinePause = 1;  // milliseconds, behind each line of text
constexpr std::size_t kBinaryBlock = 1024;
constexpr int kBinaryPause = 100;
constexpr int kCheckFailed = 1000;

void Finish(Link& link) {
  link.DrainSerial();
  link.CloseSerial();
}

// The whole reply, line by line. False at a time-out or when the program closes.
bool StoreReply(Link& link, ReplyFile& file, const SerialReply& reply, bool& timedOut) {
  std::int64_t last = link.Now();
  for (;;) {
    link.Sources().clock.DoEvents();
    if (link.Aborted()) return false;
    link.CheckSerial();
    // What has come counts, however late this looks: a window of the user may have held up the loop.
    std::string line = link.TakeLine();
    if (line.empty()) {
      timedOut = link.Now() - last > reply.timeout;
      if (timedOut) return false;
      link.Sources().clock.Sleep(kPoll);
      continue;
    }
    last = link.Now();
    if (common::StartsWith(line, kReplyEnd)) return true;
    line = StripLineEnds(line);
    const bool glued = reply.gluedMarker && line.size() >= kReplyEnd.size() &&
                       line.compare(line.size() - kReplyEnd.size(), kReplyEnd.size(), kReplyEnd) == 0;
    if (glued) line = common::ReplaceAll(line, kReplyEnd, "");
    file.Write(line + "\r\n");
    if (glued) return true;
  }
}

}  // namespace

bool RequireAnswer(Link& link, int comPort) {
  const bool answered = link.RS232ComCheck(comPort);
  if (link.Aborted()) return false;
  if (!answered) throw common::RunTimeError(kCheckFailed, "Communication check failed. Check Cable.");
  return true;
}

bool DownloadSerial(Link& link, int comPort, const std::string& command, const std::string& localPath) {
  if (!RequireAnswer(link, comPort)) return false;
  link.OpenSerial(comPort);
  const std::string bytes = link.Sources().files.Read(localPath);
  bool sent = link.SendSerial(command + "\r\n");
  common::Lines lines(bytes);
  for (std::string_view line; sent && lines.Next(line);) {
    sent = link.SendSerial(std::string(line) + "\r\n");
    link.Sources().progress.Set(static_cast<std::int64_t>(lines.Position()),
                                static_cast<std::int64_t>(bytes.size()));
    link.Sources().clock.Sleep(kLinePause);
  }
  if (sent) link.SendSerial(EndMarker(localPath) + "\r\n");
  Finish(link);
  return !link.Aborted();
}

bool DownloadBinarySerial(Link& link, int comPort, const std::string& command, const std::string& localPath) {
  link.OpenSerial(comPort);
  const std::string bytes = link.Sources().files.Read(localPath);
  ByteSum sum;
  sum.Add(bytes);
  bool sent = link.SendSerial(BinaryCommand(command, bytes.size(), sum.Value()));
  for (std::size_t at = 0; sent && at < bytes.size(); at += kBinaryBlock) {
    sent = link.SendSerial(std::string_view(bytes).substr(at, kBinaryBlock));
    link.Sources().progress.Set(static_cast<std::int64_t>(std::min(at + kBinaryBlock, bytes.size())),
                                static_cast<std::int64_t>(bytes.size()));
    link.Sources().clock.Sleep(kBinaryPause);
  }
  Finish(link);
  return !link.Aborted();
}

bool UploadSerial(Link& link, int comPort, const std::string& command, const std::string& localPath,
                  const SerialReply& reply) {
  link.Buffer().Clear();
  link.OpenSerial(comPort);
  ReplyFile file(link.Sources(), localPath);
  link.SendSerial(command + "\r\n");
  bool timedOut = false;
  const bool complete = StoreReply(link, file, reply, timedOut);
  file.Close();
  if (timedOut && reply.tellTimeout) TellTimeout(link.Sources(), localPath);
  link.CloseSerial();
  return complete;
}

bool SendCommandSerial(Link& link, int comPort, const std::string& command) {
  link.OpenSerial(comPort);
  link.SendSerial(command + "\r\n");
  link.CloseSerial();
  return !link.Aborted();
}

}  // namespace morvane::link
