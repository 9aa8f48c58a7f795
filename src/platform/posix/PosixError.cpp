#include "platform/posix/PosixError.h"

#include <sys/stat.h>

#include <cerrno>

namespace morvane::platform {
namespace {

struct Kind {
  int number;
  Error error;
};

constexpr Kind kKinds[] = {
    {0, Error::None},
    {ENOTDIR, Error::PathNotFound},
    {EACCES, Error::PermissionDenied},
    {EPERM, Error::PermissionDenied},
    {EROFS, Error::PermissionDenied},
    {ETXTBSY, Error::PermissionDenied},
    {ENOSPC, Error::DiskFull},
    {EDQUOT, Error::DiskFull},
    {EFBIG, Error::DiskFull},
    {EEXIST, Error::AlreadyExists},
    {EIO, Error::DeviceError},
};

bool ParentExists(const std::string& path) {
  const std::size_t slash = path.find_last_of('/');
  struct stat status {};
  return slash == std::string::npos || stat(path.substr(0, slash + 1).c_str(), &status) == 0;
}

}  // namespace

Error PosixError(int number, const std::string& path) {
  if (number == ENOENT) return ParentExists(path) ? Error::FileNotFound : Error::PathNotFound;
  for (const Kind& kind : kKinds) {
    if (kind.number == number) return kind.error;
  }
  return Error::AccessError;
}

}  // namespace morvane::platform
