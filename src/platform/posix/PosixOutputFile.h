// A file descriptor open for writing.
#pragma once

#include <string>

#include "platform/FileSystem.h"

namespace morvane::platform {

class PosixOutputFile : public OutputFile {
 public:
  // Takes the descriptor over; `path` serves error messages.
  PosixOutputFile(int descriptor, std::string path) : descriptor_(descriptor), path_(std::move(path)) {}
  ~PosixOutputFile() override { Close(); }
  PosixOutputFile(const PosixOutputFile&) = delete;
  PosixOutputFile& operator=(const PosixOutputFile&) = delete;

  Error Write(std::string_view bytes) override;
  Error Sync() override;
  Error Close() override;

 private:
  int descriptor_;
  std::string path_;
};

}  // namespace morvane::platform
