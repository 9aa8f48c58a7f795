// Transfers over TCP. They throw the run-time error of a failure; the caller closes the link.
#pragma once

#include <string>

#include "link/wire/Link.h"

namespace morvane::link {

bool DownloadTcp(Link& link, const std::string& ip, const std::string& command, const std::string& localPath);
bool DownloadBinaryTcp(Link& link, const std::string& ip, const std::string& command,
                       const std::string& localPath);
// `timeout` in seconds of silence.
bool UploadTcp(Link& link, const std::string& ip, const std::string& command, const std::string& localPath,
               int timeout);
bool SendCommandTcp(Link& link, const std::string& ip, const std::string& command);

}  // namespace morvane::link
