// The checksum at the end of a raster file.
#pragma once

#include <cstdint>
#include <string_view>

namespace morvane::pixbake {

// CRC-32 of ISO/IEC 3309: reflected polynomial 0xEDB88320, start and final XOR 0xFFFFFFFF.
std::uint32_t Crc32(std::string_view bytes);

}  // namespace morvane::pixbake
