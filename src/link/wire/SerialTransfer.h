// Transfers over the serial line. They throw the run-time error of a failure; the caller closes the link.
#pragma once

#include <string>

#include "link/wire/Link.h"

namespace morvane::link {

// False when the program closes; throws when no machine answers. The line is closed afterwards.
bool RequireAnswer(Link& link, int comPort);
bool DownloadSerial(Link& link, int comPort, const std::string& command, const std::string& localPath);
bool DownloadBinarySerial(Link& link, int comPort, const std::string& command, const std::string& localPath);

struct SerialReply {
  int timeout = kReplySeconds;
  bool tellTimeout = true;
  bool gluedMarker = true;  // a last line without a line end of its own ends the reply too
};
bool UploadSerial(Link& link, int comPort, const std::string& command, const std::string& localPath,
                  const SerialReply& reply);
bool SendCommandSerial(Link& link, int comPort, const std::string& command);

}  // namespace morvane::link
