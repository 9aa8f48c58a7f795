// A folder on the real disk that goes with the test.
#pragma once

#include <stdlib.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>
#include <string_view>

namespace morvane::test {

class TempFolder {
 public:
  TempFolder() {
    if (!mkdtemp(path_.data())) throw std::runtime_error("no temporary folder");
  }
  ~TempFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }
  TempFolder(const TempFolder&) = delete;
  TempFolder& operator=(const TempFolder&) = delete;

  const std::string& Path() const { return path_; }
  // Native path of a name in the folder.
  std::string operator/(std::string_view name) const { return (path_ + "/").append(name); }
  void Write(std::string_view name, std::string_view bytes) const {
    std::ofstream(*this / name, std::ios::binary) << bytes;
  }
  std::string Read(std::string_view name) const {
    std::ifstream file(*this / name, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(file), {});
  }

 private:
  std::string path_ = (std::filesystem::temp_directory_path() / "morvane-test-XXXXXX").string();
};

}  // namespace morvane::test
