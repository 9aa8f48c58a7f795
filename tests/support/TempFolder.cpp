#include "support/TempFolder.h"

#include <stdlib.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>

namespace morvane::test {

TempFolder::TempFolder() {
  path_ = (std::filesystem::temp_directory_path() / "morvane-test-XXXXXX").string();
  if (!mkdtemp(path_.data())) throw std::runtime_error("no temporary folder");
}

TempFolder::~TempFolder() {
  std::error_code ignored;
  std::filesystem::remove_all(path_, ignored);
}

void TempFolder::Write(std::string_view name, std::string_view bytes) const {
  std::ofstream(*this / name, std::ios::binary)
      .write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
}

std::string TempFolder::Read(std::string_view name) const {
  std::ifstream file(*this / name, std::ios::binary);
  return std::string(std::istreambuf_iterator<char>(file), {});
}

}  // namespace morvane::test
