#include "link/wire/CommBuffer.h"

#include <algorithm>

namespace morvane::link {

void CommBuffer::Clear() {
  text_.clear();
  start_ = 0;
  searched_ = 0;
}

void CommBuffer::Append(std::string_view text) {
  // Taken text is dropped in large steps: dropping it line by line would move the rest each time.
  if (start_ > kCommBufferSize) {
    text_.erase(0, start_);
    searched_ -= std::min(searched_, start_);
    start_ = 0;
  }
  text_ += text.substr(0, Room());
}

std::string CommBuffer::Take(std::size_t length) {
  std::string taken = text_.substr(start_, length);
  start_ += taken.size();
  searched_ = std::max(searched_, start_);
  if (start_ == text_.size()) Clear();
  return taken;
}

std::string CommBuffer::TakeLine() {
  const std::size_t found = text_.find('\n', std::max(start_, searched_));
  if (found == std::string::npos) {
    searched_ = text_.size();
    return {};
  }
  return Take(found + 1 - start_);
}

std::string CommBuffer::TakeChunk() {
  return Take(kChunkSize);
}

}  // namespace morvane::link
