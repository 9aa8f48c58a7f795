// The operations of the controller link. Each opens the link, does its work and closes it again; each
// reports its own failures and answers whether it succeeded. A download succeeds when the bytes have left.
#pragma once

#include <string>

#include "link/LinkOwner.h"
#include "link/wire/Link.h"

namespace morvane::link {

class Comm {
 public:
  explicit Comm(const LinkSources& sources) : owner_(sources.prompts), link_(sources), sources_(sources) {}

  // Local paths are program names. Sends a text file behind the command.
  bool DownloadFile(const std::string& command, const std::string& localPath);
  // Sends a file raw, behind a line of the command, its length and its sum.
  bool DownloadBinaryFile(const std::string& command, const std::string& localPath);
  // Stores the reply to a command. A time-out is told.
  bool UploadFile(const std::string& command, const std::string& localPath);
  // The same with a time-out in seconds, where 0 becomes 10; on the serial line a time-out is not told.
  bool UploadFileTimed(const std::string& command, const std::string& localPath, int& timeout);
  // True when a machine is there: it answers on the serial line, or takes a connection.
  bool Check();
  // Sends a line and expects nothing.
  bool SendCommand(const std::string& command);
  // Runs a job on the controller and waits for "SUCCESS".
  bool RunWait(const std::string& name, int timeout);

  LinkOwner& Owner() { return owner_; }
  Link& Open() { return link_; }

 private:
  template <typename Work>
  bool Run(const char* serialName, const char* tcpName, Work&& work);

  LinkOwner owner_;
  Link link_;
  LinkSources sources_;
};

}  // namespace morvane::link
