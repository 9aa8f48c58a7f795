// Programs that start with the user's session: desktop entries in the autostart folder.
#pragma once

#include "platform/FileSystem.h"
#include "platform/Stores.h"

namespace morvane::platform {

// One entry `autostart/NAME.desktop` for each name.
class PosixAutoStartStore : public AutoStartStore {
 public:
  // `configDirectory` is native, such as UserConfigDirectory gives it.
  PosixAutoStartStore(FileSystem& fileSystem, const std::string& configDirectory)
      : fileSystem_(fileSystem),
        configDirectory_(configDirectory),
        directory_(configDirectory + "/autostart") {}

  std::vector<std::string> Names() const override;
  // `command` is the native path of a program, without arguments.
  bool Write(const std::string& name, const std::string& command) override;
  // True also when there was no such entry.
  bool Remove(const std::string& name) override;

 private:
  FileSystem& fileSystem_;
  std::string configDirectory_;
  std::string directory_;
};

}  // namespace morvane::platform
