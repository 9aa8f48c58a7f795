#include "textjob/preview/BitmapSize.h"

#include <cstddef>
#include <limits>

namespace morvane::textjob {
namespace {

constexpr std::size_t kFileHeader = 14;    // "BM", sizes; the picture's own header follows
constexpr std::size_t kHeaderPrefix = 26;  // both headers up to the picture's height
constexpr std::int64_t kCoreHeader = 12;   // the oldest form, with 16-bit sizes
constexpr std::int64_t kInfoHeader = 40;   // the least that a header with 32-bit sizes takes

std::int64_t Unsigned(std::string_view bytes, std::size_t position, std::size_t count) {
  std::int64_t value = 0;
  for (std::size_t i = count; i > 0; --i) {
    value = value * 256 + static_cast<unsigned char>(bytes[position + i - 1]);
  }
  return value;
}

std::int64_t Signed32(std::string_view bytes, std::size_t position) {
  const std::int64_t value = Unsigned(bytes, position, 4);
  return value > std::numeric_limits<std::int32_t>::max() ? value - (std::int64_t{1} << 32) : value;
}

}  // namespace

std::optional<PixelSize> BitmapSize(std::string_view bytes) {
  if (bytes.size() < kHeaderPrefix || bytes.substr(0, 2) != "BM") return std::nullopt;
  const std::int64_t header = Unsigned(bytes, kFileHeader, 4);
  std::int64_t width = 0;
  std::int64_t height = 0;
  if (header == kCoreHeader) {
    width = Unsigned(bytes, kFileHeader + 4, 2);
    height = Unsigned(bytes, kFileHeader + 6, 2);
  } else if (header >= kInfoHeader) {
    width = Signed32(bytes, kFileHeader + 4);
    height = Signed32(bytes, kFileHeader + 8);
    if (height < 0) height = -height;  // rows stand from top to bottom
  }
  if (width <= 0 || height <= 0 || height > std::numeric_limits<std::int32_t>::max()) return std::nullopt;
  return PixelSize{static_cast<std::int32_t>(width), static_cast<std::int32_t>(height)};
}

}  // namespace morvane::textjob
