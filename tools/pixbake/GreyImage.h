// The picture that bitmap and raster files share: 8-bit grey, and the limits that both keep.
#pragma once

#include <cstddef>
#include <cstdint>
#include <stdexcept>
#include <string>
#include <string_view>

namespace morvane::pixbake {

// Thrown with a sentence for the operator when bytes are not the file they should be.
class FormatError : public std::runtime_error {
  using std::runtime_error::runtime_error;
};

inline constexpr std::size_t kMaxSide = 32767;                            // pixels
inline constexpr std::size_t kMaxPixels = std::size_t{64} * 1024 * 1024;  // of a whole picture

struct GreyImage {
  std::size_t width = 0;   // pixels
  std::size_t height = 0;  // pixels
  std::string pixels;      // one byte each, 0 black to 255 white, rows from the top without filling

  std::string_view Row(std::size_t y) const { return std::string_view(pixels).substr(y * width, width); }
  friend bool operator==(const GreyImage&, const GreyImage&) = default;
};

// Throws FormatError for a picture without pixels or beyond the limits. Called before anything of that
// size is allocated.
inline void CheckSize(std::size_t width, std::size_t height) {
  if (width == 0 || height == 0) throw FormatError("The picture has no pixels");
  if (width > kMaxSide || height > kMaxSide || width * height > kMaxPixels) {
    throw FormatError("The picture is too large (" + std::to_string(width) + " x " + std::to_string(height) +
                      ")");
  }
}

}  // namespace morvane::pixbake
