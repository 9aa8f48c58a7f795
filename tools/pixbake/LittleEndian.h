// Numbers in file headers, low byte first. The caller has checked that the bytes are there.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace morvane::pixbake {

inline std::uint8_t ByteAt(std::string_view bytes, std::size_t at) {
  return static_cast<std::uint8_t>(bytes[at]);
}

inline std::uint16_t Read16(std::string_view bytes, std::size_t at) {
  return static_cast<std::uint16_t>(ByteAt(bytes, at) | ByteAt(bytes, at + 1) << 8);
}

inline std::uint32_t Read32(std::string_view bytes, std::size_t at) {
  return Read16(bytes, at) | std::uint32_t{Read16(bytes, at + 2)} << 16;
}

inline void Put16(std::string& bytes, std::uint16_t value) {
  bytes += static_cast<char>(value & 0xFF);
  bytes += static_cast<char>(value >> 8);
}

inline void Put32(std::string& bytes, std::uint32_t value) {
  Put16(bytes, static_cast<std::uint16_t>(value & 0xFFFF));
  Put16(bytes, static_cast<std::uint16_t>(value >> 16));
}

}  // namespace morvane::pixbake
