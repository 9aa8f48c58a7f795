// The size that a .bmp file claims, read without decoding the picture.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace morvane::textjob {

// In pixels, both above 0.
struct PixelSize {
  std::int32_t width = 0;
  std::int32_t height = 0;
};

// Looks at the first 26 bytes only; nothing when they are no bitmap header.
std::optional<PixelSize> BitmapSize(std::string_view bytes);

}  // namespace morvane::textjob
