#include "common/files/ScratchName.h"

#include <algorithm>

namespace morvane::common {

std::string ScratchName(std::string_view name, std::string_view extension) {
  const std::size_t point = name.find_last_of(".\\/");
  const bool hasExtension = point != std::string_view::npos && name[point] == '.';
  std::string stem(name.substr(0, hasExtension ? point : name.size()));
  std::replace_if(
      stem.begin(), stem.end(), [](char c) { return c == '\\' || c == '/'; }, '$');
  return "\\Temp\\" + stem + std::string(extension);
}

}  // namespace morvane::common
