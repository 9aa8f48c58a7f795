#include "platform/posix/PosixOutputFile.h"

#include <unistd.h>

#include <cerrno>

#include "platform/posix/PosixError.h"

namespace morvane::platform {

Error PosixOutputFile::Write(std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t written = write(descriptor_, bytes.data(), bytes.size());
    if (written > 0) {
      bytes.remove_prefix(static_cast<std::size_t>(written));
    } else if (written == 0) {
      return Error::DiskFull;
    } else if (errno != EINTR) {
      return PosixError(errno, path_);
    }
  }
  return Error::None;
}

Error PosixOutputFile::Sync() {
  // A pipe or a device has nothing to sync.
  if (fsync(descriptor_) == 0 || errno == EINVAL || errno == EROFS) return Error::None;
  return PosixError(errno, path_);
}

Error PosixOutputFile::Close() {
  if (descriptor_ < 0) return Error::None;
  const int descriptor = descriptor_;
  descriptor_ = -1;
  // After an interruption the descriptor is closed all the same.
  if (close(descriptor) == 0 || errno == EINTR) return Error::None;
  return PosixError(errno, path_);
}

}  // namespace morvane::platform
