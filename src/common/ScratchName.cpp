#include "common/ScratchName.h"

#include <algorithm>

namespace morvane::common {

std::string ScratchName(std::string_view name, std::string_view extension) {
  std::string stem(name.substr(0, name.rfind('.')));
  std::replace_if(
      stem.begin(), stem.end(), [](char c) { return c == '\\' || c == '/'; }, '$');
  return "\\Temp\\" + stem + std::string(extension);
}

}  // namespace morvane::common
