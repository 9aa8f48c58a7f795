#include "common/text/OneLine.h"

namespace morvane::common {

std::string OneLine(std::string_view text) {
  std::string line(text);
  std::erase_if(line, [](char c) { return c == '\r' || c == '\n'; });
  return line;
}

}  // namespace morvane::common
