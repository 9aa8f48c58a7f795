// Everything received and not yet taken. Both transports fill it.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace morvane::link {

// Both transports hold back what does not fit, so a reply without an end costs no memory.
inline constexpr std::size_t kCommBufferSize = 1024 * 1024;
inline constexpr std::size_t kChunkSize = 1024;

class CommBuffer {
 public:
  std::size_t Room() const { return kCommBufferSize - Size(); }
  std::size_t Size() const { return text_.size() - start_; }
  void Clear();
  // At most Room() characters.
  void Append(std::string_view text);
  // Removes and returns the text up to and including the first line feed; empty when there is none.
  std::string TakeLine();
  // Removes and returns the first 1024 characters, or what there is.
  std::string TakeChunk();

 private:
  std::string Take(std::size_t length);

  std::string text_;
  std::size_t start_ = 0;     // what lies before it was taken
  std::size_t searched_ = 0;  // no line feed lies before it
};

}  // namespace morvane::link
