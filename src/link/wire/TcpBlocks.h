// The blocks in which a file goes over TCP. The controller's side is built for these, surplus included.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace morvane::link {

inline constexpr std::size_t kTcpBlockStep = 2900;
inline constexpr std::size_t kTcpReadSize = 2901;

// Cuts a file as the controller expects it: the position grows by 2900 a block while 2901 bytes are read,
// so that the read runs one byte ahead for each full block, and the last block is filled up with what the
// one before left in the buffer.
class TcpBlocks {
 public:
  explicit TcpBlocks(std::string_view file) : file_(file), buffer_(kTcpReadSize, '\0') {}

  // False when the file is through. Throws "Subscript out of range" behind the last full block of a file
  // whose length is a multiple of 2900.
  bool Next(std::string_view& block);

 private:
  std::string_view file_;
  std::string buffer_;
  std::size_t position_ = 0;
  std::size_t counter_ = 0;
};

}  // namespace morvane::link
