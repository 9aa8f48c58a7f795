// A folder on the real disk that goes with the test.
#pragma once

#include <string>
#include <string_view>

namespace morvane::test {

class TempFolder {
 public:
  TempFolder();
  ~TempFolder();
  TempFolder(const TempFolder&) = delete;
  TempFolder& operator=(const TempFolder&) = delete;

  const std::string& Path() const { return path_; }
  // Native path of a name in the folder.
  std::string operator/(std::string_view name) const { return (path_ + "/").append(name); }
  void Write(std::string_view name, std::string_view bytes) const;
  std::string Read(std::string_view name) const;

 private:
  std::string path_;
};

}  // namespace morvane::test
