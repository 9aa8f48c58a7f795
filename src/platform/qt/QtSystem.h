// Small services of the desktop: one instance for each base directory, windows of other programs.
#pragma once

#include <QAbstractSocket>
#include <QLocalServer>
#include <string>

namespace morvane::platform {

// Holds a name in the kernel that vanishes with the process, so a killed one never blocks the next.
class SingleInstance {
 public:
  // `baseDirectory` is a native path.
  explicit SingleInstance(const std::string& baseDirectory);
  // False when another process has the base directory. A system without such names has no say in it.
  bool First() const { return server_.serverError() != QAbstractSocket::AddressInUseError; }

 private:
  QLocalServer server_;
};

// Asks every top-level window with exactly this title (core text) to close, of this program and, on
// X11, of others. False when there is none.
bool CloseWindowByTitle(const std::string& title);

}  // namespace morvane::platform
