#include "pixbake/Ras.h"

#include <algorithm>

#include "pixbake/Checksum.h"
#include "pixbake/LittleEndian.h"

namespace morvane::pixbake {
namespace {

constexpr std::string_view kMagic = "MRAS";
constexpr std::uint16_t kVersion = 1;
constexpr std::uint16_t kBitsPerPixel = 8;
constexpr std::size_t kHeader = 16;
constexpr std::size_t kChecksum = 4;
// A control byte of 0 to 127 stands before 1 to 128 pixels as they are; one of 128 to 255 before one pixel
// that is repeated 2 to 129 times.
constexpr std::size_t kMaxLiteral = 128;
constexpr std::size_t kRepeatBase = 126;
constexpr std::size_t kMaxRepeat = 129;
// Two equal pixels among others cost less as they are.
constexpr std::size_t kWorthRepeating = 3;

std::size_t RunLength(std::string_view row) {
  const std::size_t end = row.substr(0, kMaxRepeat).find_first_not_of(row.front());
  return std::min({end, row.size(), kMaxRepeat});
}

// Pixels before the next run that is worth a control byte of its own.
std::size_t LiteralLength(std::string_view row) {
  std::size_t length = 0;
  while (length < row.size() && length < kMaxLiteral && RunLength(row.substr(length)) < kWorthRepeating)
    ++length;
  return length;
}

void AppendRow(std::string_view row, std::string& bytes) {
  while (!row.empty()) {
    std::size_t length = RunLength(row);
    if (length >= kWorthRepeating) {
      bytes += static_cast<char>(length + kRepeatBase);
      bytes += row.front();
    } else {
      length = LiteralLength(row);
      bytes += static_cast<char>(length - 1);
      bytes += row.substr(0, length);
    }
    row.remove_prefix(length);
  }
}

std::string_view Take(std::string_view& data, std::size_t count) {
  if (data.size() < count) throw FormatError("The raster ends within its pixels");
  const std::string_view taken = data.substr(0, count);
  data.remove_prefix(count);
  return taken;
}

void ReadRow(std::string_view& data, std::size_t width, std::string& pixels) {
  std::size_t left = width;
  while (left > 0) {
    const std::size_t control = ByteAt(Take(data, 1), 0);
    const bool repeat = control >= kMaxLiteral;
    const std::size_t length = repeat ? control - kRepeatBase : control + 1;
    if (length > left) throw FormatError("A row of the raster is too long");
    if (repeat) {
      pixels.append(length, Take(data, 1).front());
    } else {
      pixels += Take(data, length);
    }
    left -= length;
  }
}

}  // namespace

GreyImage ReadRas(std::string_view bytes) {
  if (bytes.substr(0, kMagic.size()) != kMagic) throw FormatError("The file is not a raster");
  if (bytes.size() < kHeader + kChecksum) throw FormatError("The raster ends within its header");
  if (Read16(bytes, 4) != kVersion || Read16(bytes, 6) != kBitsPerPixel) {
    throw FormatError("The raster is of a version that is not known");
  }
  const std::size_t end = bytes.size() - kChecksum;
  if (Read32(bytes, end) != Crc32(bytes.substr(0, end)))
    throw FormatError("The raster is damaged or cut short");

  GreyImage image{Read32(bytes, 8), Read32(bytes, 12), {}};
  CheckSize(image.width, image.height);
  std::string_view data = bytes.substr(kHeader, end - kHeader);
  const std::size_t smallestRow = (image.width + kMaxRepeat - 1) / kMaxRepeat * 2;
  if (data.size() < smallestRow * image.height) throw FormatError("The raster ends within its pixels");
  image.pixels.reserve(image.width * image.height);
  for (std::size_t y = 0; y < image.height; ++y) ReadRow(data, image.width, image.pixels);
  if (!data.empty()) throw FormatError("The raster has more data than pixels");
  return image;
}

std::string WriteRas(const GreyImage& image) {
  std::string bytes(kMagic);
  Put16(bytes, kVersion);
  Put16(bytes, kBitsPerPixel);
  Put32(bytes, static_cast<std::uint32_t>(image.width));
  Put32(bytes, static_cast<std::uint32_t>(image.height));
  for (std::size_t y = 0; y < image.height; ++y) AppendRow(image.Row(y), bytes);
  Put32(bytes, Crc32(bytes));
  return bytes;
}

}  // namespace morvane::pixbake
