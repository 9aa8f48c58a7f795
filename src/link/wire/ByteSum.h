// The check of a binary download: the sum over the bytes that are sent.
#pragma once

#include <cstddef>
#include <cstdint>
#include <limits>
#include <string>
#include <string_view>

#include "common/RunTimeError.h"

namespace morvane::link {

// Bytes count as 0 to 255. Beyond a signed 32-bit integer it throws "Overflow".
class ByteSum {
 public:
  void Add(std::string_view bytes) {
    for (const char c : bytes) sum_ += static_cast<unsigned char>(c);
    if (sum_ > std::numeric_limits<std::int32_t>::max()) throw common::RunTimeError(common::kOverflow);
  }
  std::int64_t Value() const { return sum_; }

 private:
  std::int64_t sum_ = 0;
};

inline std::string BinaryCommand(const std::string& command, std::size_t length, std::int64_t sum) {
  return command + ',' + std::to_string(length) + ',' + std::to_string(sum) + "\r\n";
}

}  // namespace morvane::link
