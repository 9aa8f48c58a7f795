// The file system as the core needs it: whole-file reads, listings and checked writes by native path.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Error.h"

namespace morvane::platform {

enum class EntryKind { Missing, File, Directory, Other };

struct FileStatus {
  EntryKind kind = EntryKind::Missing;
  std::uint64_t size = 0;                // bytes
  std::int64_t modifiedNanoseconds = 0;  // since 1970-01-01 UTC
  bool writable = false;                 // by its permission bits, also for an administrator
};

// A file opened for writing. Each step reports its own failure; after the first failure the file is
// useless and only Close makes sense.
class OutputFile {
 public:
  virtual ~OutputFile() = default;
  // Writes all bytes or fails: a short count is an error.
  virtual Error Write(std::string_view bytes) = 0;
  // Forces the bytes to the disk.
  virtual Error Sync() = 0;
  // Closing twice does nothing. The destructor closes and drops the error.
  virtual Error Close() = 0;
};

// All paths are native: UTF-8, slashes, absolute or relative to the process's folder.
class FileSystem {
 public:
  virtual ~FileSystem() = default;

  virtual FileStatus Status(const std::string& path) const = 0;
  virtual Error Read(const std::string& path, std::string& bytes) const = 0;
  // Names (not paths) of all entries but "." and "..", in no particular order.
  virtual Error List(const std::string& directory, std::vector<std::string>& names) const = 0;
  // The path with symbolic links followed, absolute; parts that do not exist yet are kept as they are.
  virtual std::string RealPath(const std::string& path) const = 0;

  // Creates or truncates; null with `error` set on failure.
  virtual std::unique_ptr<OutputFile> Create(const std::string& path, Error& error) = 0;
  // Fails with AlreadyExists when the path exists in any form. The new file takes the permission bits
  // of `permissionsLike` when that exists.
  virtual std::unique_ptr<OutputFile> CreateNew(const std::string& path, const std::string& permissionsLike,
                                                Error& error) = 0;
  virtual Error MakeDirectory(const std::string& path) = 0;
  virtual Error Remove(const std::string& path) = 0;
  // Replaces an existing target in one step.
  virtual Error Rename(const std::string& from, const std::string& to) = 0;
  virtual Error SyncDirectory(const std::string& path) = 0;
};

}  // namespace morvane::platform
