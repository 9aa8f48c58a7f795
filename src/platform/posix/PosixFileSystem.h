// The file system of the machine.
#pragma once

#include "platform/FileSystem.h"

namespace morvane::platform {

// A path with a NUL names nothing, in every call.
class PosixFileSystem : public FileSystem {
 public:
  FileStatus Status(const std::string& path) const override;
  // Anything but a regular file is refused: a pipe would never end.
  Error Read(const std::string& path, std::string& bytes) const override;
  Error List(const std::string& directory, std::vector<std::string>& names) const override;
  std::string RealPath(const std::string& path) const override;
  std::unique_ptr<OutputFile> Create(const std::string& path, Error& error) override;
  std::unique_ptr<OutputFile> CreateNew(const std::string& path, const std::string& permissionsLike,
                                        Error& error) override;
  Error MakeDirectory(const std::string& path) override;
  Error Remove(const std::string& path) override;
  Error Rename(const std::string& from, const std::string& to) override;
  Error SyncDirectory(const std::string& path) override;
};

}  // namespace morvane::platform
