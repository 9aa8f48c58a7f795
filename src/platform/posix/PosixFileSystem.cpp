#include "platform/posix/PosixFileSystem.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>

#include "platform/posix/PosixError.h"
#include "platform/posix/PosixOutputFile.h"
#include "platform/posix/PosixPaths.h"

namespace morvane::platform {
namespace {

constexpr std::size_t kReadStep = 1 << 16;
constexpr mode_t kPermissionBits = 0777;

bool HasNul(const std::string& path) {
  return path.find('\0') != std::string::npos;
}

EntryKind KindOf(mode_t mode) {
  if (S_ISREG(mode)) return EntryKind::File;
  return S_ISDIR(mode) ? EntryKind::Directory : EntryKind::Other;
}

bool InGroup(gid_t group) {
  std::vector<gid_t> groups(static_cast<std::size_t>(std::max(getgroups(0, nullptr), 0)));
  const int got = getgroups(static_cast<int>(groups.size()), groups.data());
  groups.resize(static_cast<std::size_t>(std::max(got, 0)));
  return group == getegid() || std::find(groups.begin(), groups.end(), group) != groups.end();
}

// The bits decide for an administrator too, who could write anything: a file made read-only is meant so.
bool IsWritable(const struct stat& status) {
  const uid_t user = geteuid();
  if (user == 0) return (status.st_mode & (S_IWUSR | S_IWGRP | S_IWOTH)) != 0;
  if (user == status.st_uid) return (status.st_mode & S_IWUSR) != 0;
  return (status.st_mode & (InGroup(status.st_gid) ? S_IWGRP : S_IWOTH)) != 0;
}

// Closes a descriptor that was only read from.
class Descriptor {
 public:
  explicit Descriptor(int number) : number_(number) {}
  ~Descriptor() {
    if (number_ >= 0) close(number_);
  }
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  int number() const { return number_; }

 private:
  int number_;
};

Error ReadAll(int descriptor, std::size_t expected, const std::string& path, std::string& bytes) {
  std::size_t length = 0;
  bytes.resize(expected + 1);  // the byte beyond shows the end without another step
  for (;;) {
    if (length == bytes.size()) bytes.resize(length + std::max(kReadStep, length / 2));
    const ssize_t got = read(descriptor, bytes.data() + length, bytes.size() - length);
    if (got < 0 && errno == EINTR) continue;
    bytes.resize(got <= 0 ? length : bytes.size());
    if (got < 0) return PosixError(errno, path);
    if (got == 0) return Error::None;
    length += static_cast<std::size_t>(got);
  }
}

int Open(const std::string& path, int mode, Error& error) {
  // Without blocking: a pipe that nobody reads would hold the program up.
  const int flags = O_WRONLY | O_CREAT | O_CLOEXEC | O_NONBLOCK | mode;
  const int descriptor = HasNul(path) ? -1 : open(path.c_str(), flags, 0666);
  error = HasNul(path) ? Error::AccessError : descriptor < 0 ? PosixError(errno, path) : Error::None;
  return descriptor;
}

}  // namespace

FileStatus PosixFileSystem::Status(const std::string& path) const {
  struct stat status {};
  if (HasNul(path) || stat(path.c_str(), &status) != 0) return {};
  FileStatus result;
  result.kind = KindOf(status.st_mode);
  result.size = static_cast<std::uint64_t>(status.st_size);
  result.modifiedNanoseconds = status.st_mtim.tv_sec * 1'000'000'000 + status.st_mtim.tv_nsec;
  result.writable = IsWritable(status);
  return result;
}

Error PosixFileSystem::Read(const std::string& path, std::string& bytes) const {
  bytes.clear();
  if (HasNul(path)) return Error::AccessError;
  const Descriptor file(open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
  struct stat status {};
  if (file.number() < 0 || fstat(file.number(), &status) != 0) return PosixError(errno, path);
  if (!S_ISREG(status.st_mode)) return Error::AccessError;
  return ReadAll(file.number(), static_cast<std::size_t>(status.st_size), path, bytes);
}

Error PosixFileSystem::List(const std::string& directory, std::vector<std::string>& names) const {
  names.clear();
  if (HasNul(directory)) return Error::AccessError;
  DIR* const stream = opendir(directory.c_str());
  if (stream == nullptr) return errno == ENOENT ? Error::PathNotFound : PosixError(errno, directory);
  while (const dirent* entry = readdir(stream)) {
    std::string name = entry->d_name;
    if (name != "." && name != "..") names.push_back(std::move(name));
  }
  closedir(stream);
  return Error::None;
}

std::string PosixFileSystem::RealPath(const std::string& path) const {
  return HasNul(path) ? path : PosixRealPath(path);
}

std::unique_ptr<OutputFile> PosixFileSystem::Create(const std::string& path, Error& error) {
  const int descriptor = Open(path, O_TRUNC, error);
  if (descriptor < 0) return nullptr;
  return std::make_unique<PosixOutputFile>(descriptor, path);
}

std::unique_ptr<OutputFile> PosixFileSystem::CreateNew(const std::string& path,
                                                       const std::string& permissionsLike, Error& error) {
  const int descriptor = Open(path, O_EXCL, error);
  if (descriptor < 0) return nullptr;
  auto file = std::make_unique<PosixOutputFile>(descriptor, path);
  struct stat status {};
  if (HasNul(permissionsLike) || stat(permissionsLike.c_str(), &status) != 0) return file;
  if (fchmod(descriptor, status.st_mode & kPermissionBits) == 0) return file;
  error = PosixError(errno, path);
  unlink(path.c_str());
  return nullptr;
}

Error PosixFileSystem::MakeDirectory(const std::string& path) {
  if (HasNul(path)) return Error::AccessError;
  return mkdir(path.c_str(), 0777) == 0 ? Error::None : PosixError(errno, path);
}

Error PosixFileSystem::Remove(const std::string& path) {
  if (HasNul(path)) return Error::AccessError;
  return unlink(path.c_str()) == 0 ? Error::None : PosixError(errno, path);
}

Error PosixFileSystem::Rename(const std::string& from, const std::string& to) {
  if (HasNul(from) || HasNul(to)) return Error::AccessError;
  if (rename(from.c_str(), to.c_str()) == 0) return Error::None;
  const int number = errno;
  struct stat status {};
  const bool sourceMissing = number == ENOENT && stat(from.c_str(), &status) != 0;
  return PosixError(number, sourceMissing ? from : to);
}

Error PosixFileSystem::SyncDirectory(const std::string& path) {
  if (HasNul(path)) return Error::AccessError;
  const Descriptor directory(open(path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (directory.number() < 0) return errno == ENOENT ? Error::PathNotFound : PosixError(errno, path);
  // Some file systems keep no folder that could be synced.
  return fsync(directory.number()) == 0 || errno == EINVAL ? Error::None : PosixError(errno, path);
}

}  // namespace morvane::platform
