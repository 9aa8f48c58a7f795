#include "platform/posix/PosixSystemInfo.h"

#include <pwd.h>
#include <stdlib.h>
#include <unistd.h>

#include "common/text/CodePage.h"

namespace morvane::platform {
namespace {

constexpr std::size_t kLongestName = 255;

std::string Shortened(const char* utf8) {
  return utf8 == nullptr ? std::string() : common::FromUtf8(utf8).substr(0, kLongestName);
}

}  // namespace

std::string PosixSystemInfo::ComputerNameText() const {
  char name[kLongestName + 1] = {};
  // The system need not end a name that it cut.
  return gethostname(name, kLongestName) == 0 ? Shortened(name) : std::string();
}

std::string PosixSystemInfo::UserNameText() const {
  const passwd* user = getpwuid(geteuid());
  return Shortened(user != nullptr ? user->pw_name : getenv("USER"));
}

}  // namespace morvane::platform
