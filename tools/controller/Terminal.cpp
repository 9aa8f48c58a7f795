#include "controller/Terminal.h"

#include <fcntl.h>
#include <poll.h>
#include <stdlib.h>
#include <termios.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <filesystem>

namespace morvane::controller {

Terminal::~Terminal() {
  Close();
}

void Terminal::Close() {
  if (machine_ < 0) return;
  close(machine_);
  machine_ = -1;
  std::error_code ignored;
  if (std::filesystem::read_symlink(link_, ignored) == name_) std::filesystem::remove(link_, ignored);
}

bool Terminal::Open(const std::string& link, std::string& error) {
  link_ = link;
  machine_ = posix_openpt(O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC);
  if (machine_ < 0 || grantpt(machine_) != 0 || unlockpt(machine_) != 0) {
    error = std::string("pseudo-terminal: ") + std::strerror(errno);
    return false;
  }
  name_ = ptsname(machine_);
  termios raw{};
  tcgetattr(machine_, &raw);
  cfmakeraw(&raw);
  tcsetattr(machine_, TCSANOW, &raw);
  // Only a line that was open once tells that nobody has it open.
  const int host = open(name_.c_str(), O_RDWR | O_NOCTTY | O_CLOEXEC);
  if (host >= 0) close(host);
  if (link.empty()) return true;
  std::error_code code;
  if (std::filesystem::is_symlink(link, code)) std::filesystem::remove(link, code);
  std::filesystem::create_symlink(name_, link, code);
  if (code) error = link + ": " + code.message();
  return !code;
}

bool Terminal::HostIsThere() const {
  pollfd state{machine_, 0, 0};
  return poll(&state, 1, 0) >= 0 && !(state.revents & POLLHUP);
}

bool Terminal::Replace(std::string& error) {
  Close();
  return Open(link_, error);
}

}  // namespace morvane::controller
