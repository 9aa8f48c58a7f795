#include "common/text/Lines.h"

#include <algorithm>

#include "common/RunTimeError.h"

namespace morvane::common {

bool Lines::Next(std::string_view& line) {
  if (AtEnd()) return false;
  if (position_ == 0 || lineFeed_ < position_) {
    lineFeed_ = std::min(bytes_.find('\n', position_), bytes_.size());
  }
  const std::string_view upToFeed = bytes_.substr(position_, lineFeed_ - position_);
  const std::size_t length = std::min(upToFeed.find('\r'), upToFeed.size());
  line = upToFeed.substr(0, length);
  const std::size_t end = position_ + length;
  const bool pair = end + 1 == lineFeed_ && lineFeed_ < bytes_.size();
  position_ = std::min(end + (pair ? 2 : 1), bytes_.size());
  return true;
}

std::string_view Lines::Take() {
  std::string_view line;
  if (!Next(line)) throw RunTimeError(kInputPastEndOfFile);
  return line;
}

}  // namespace morvane::common
