// The older per-user settings: an ini file in the user's configuration folder.
#pragma once

#include "platform/FileSystem.h"
#include "platform/Stores.h"

namespace morvane::platform {

// `Morvane/user.ini`. A file that is missing or cannot be read is an empty store; a removal that cannot be
// written leaves the key.
class PosixPerUserStore : public PerUserStore {
 public:
  // `configDirectory` is native, such as UserConfigDirectory gives it.
  PosixPerUserStore(FileSystem& fileSystem, const std::string& configDirectory)
      : fileSystem_(fileSystem), path_(configDirectory + "/Morvane/user.ini") {}

  std::vector<std::pair<std::string, std::string>> All(const std::string& section) const override;
  std::string Get(const std::string& section, const std::string& key,
                  const std::string& fallback) const override;
  void Remove(const std::string& section, const std::string& key) override;

 private:
  std::string Bytes() const;

  FileSystem& fileSystem_;
  std::string path_;
};

}  // namespace morvane::platform
