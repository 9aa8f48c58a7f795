#include "pixbake/Bitmap.h"

#include "pixbake/LittleEndian.h"

namespace morvane::pixbake {
namespace {

constexpr std::size_t kFileHeader = 14;
constexpr std::size_t kInfoHeader = 40;
constexpr std::size_t kPaletteEntry = 4;
constexpr std::size_t kGreys = 256;
constexpr std::uint16_t kMagic = 19778;  // "BM"
constexpr std::uint32_t kUncompressed = 0;

struct Layout {
  std::size_t width = 0;
  std::size_t height = 0;
  bool topDown = false;
  std::size_t bytesPerPixel = 0;
  std::size_t stride = 0;  // bytes from row to row
  std::size_t paletteAt = 0;
  std::size_t paletteCount = 0;
  std::size_t pixelsAt = 0;
};

std::size_t Stride(std::size_t width, std::size_t bytesPerPixel) {
  return (width * bytesPerPixel + 3) / 4 * 4;
}

char Grey(std::string_view bytes, std::size_t at) {
  const unsigned blue = ByteAt(bytes, at);
  const unsigned green = ByteAt(bytes, at + 1);
  const unsigned red = ByteAt(bytes, at + 2);
  return static_cast<char>((299 * red + 587 * green + 114 * blue + 500) / 1000);
}

void ReadSize(std::string_view bytes, Layout& layout) {
  const auto width = static_cast<std::int32_t>(Read32(bytes, 18));
  const std::int64_t height = static_cast<std::int32_t>(Read32(bytes, 22));
  if (width < 0) throw FormatError("The bitmap's width is negative");
  layout.topDown = height < 0;
  layout.width = static_cast<std::size_t>(width);
  layout.height = static_cast<std::size_t>(layout.topDown ? -height : height);
  CheckSize(layout.width, layout.height);
}

void ReadPalette(std::string_view bytes, std::size_t headerSize, Layout& layout) {
  const std::size_t count = Read32(bytes, 46);
  layout.paletteAt = kFileHeader + headerSize;
  layout.paletteCount = count == 0 ? kGreys : count;
  if (layout.paletteCount > kGreys) throw FormatError("The bitmap's colour table is too long");
  if (layout.paletteAt + layout.paletteCount * kPaletteEntry > bytes.size()) {
    throw FormatError("The bitmap ends within its colour table");
  }
}

Layout ReadLayout(std::string_view bytes) {
  if (bytes.size() < kFileHeader + kInfoHeader) throw FormatError("The bitmap ends within its header");
  if (Read16(bytes, 0) != kMagic) throw FormatError("The file is not a bitmap");
  const std::size_t headerSize = Read32(bytes, 14);
  if (headerSize < kInfoHeader || headerSize > bytes.size())
    throw FormatError("The bitmap's header is not known");
  const unsigned bits = Read16(bytes, 28);
  if ((bits != 8 && bits != 24 && bits != 32) || Read32(bytes, 30) != kUncompressed) {
    throw FormatError("Only uncompressed bitmaps of 8, 24 or 32 bits are read");
  }
  Layout layout;
  ReadSize(bytes, layout);
  layout.bytesPerPixel = bits / 8;
  layout.stride = Stride(layout.width, layout.bytesPerPixel);
  if (bits == 8) ReadPalette(bytes, headerSize, layout);
  layout.pixelsAt = Read32(bytes, 10);
  if (layout.pixelsAt < kFileHeader + headerSize + layout.paletteCount * kPaletteEntry ||
      layout.pixelsAt > bytes.size()) {
    throw FormatError("The bitmap's pixels lie outside the file");
  }
  if (bytes.size() - layout.pixelsAt < layout.stride * layout.height) {
    throw FormatError("The bitmap ends within its pixels");
  }
  return layout;
}

// What each index of an 8-bit bitmap looks like.
std::string PaletteGreys(std::string_view bytes, const Layout& layout) {
  std::string greys;
  for (std::size_t i = 0; i < layout.paletteCount; ++i)
    greys += Grey(bytes, layout.paletteAt + i * kPaletteEntry);
  return greys;
}

void AppendIndexedRow(std::string_view row, std::string_view greys, std::string& pixels) {
  for (const char c : row) {
    const auto index = static_cast<std::uint8_t>(c);
    if (index >= greys.size()) throw FormatError("A pixel has a colour that is not in the bitmap's table");
    pixels += greys[index];
  }
}

}  // namespace

GreyImage ReadBitmap(std::string_view bytes) {
  const Layout layout = ReadLayout(bytes);
  GreyImage image{layout.width, layout.height, {}};
  image.pixels.reserve(image.width * image.height);
  const std::string greys = PaletteGreys(bytes, layout);
  for (std::size_t y = 0; y < image.height; ++y) {
    const std::size_t line = layout.topDown ? y : image.height - 1 - y;
    const std::string_view row =
        bytes.substr(layout.pixelsAt + line * layout.stride, layout.width * layout.bytesPerPixel);
    if (layout.bytesPerPixel == 1) {
      AppendIndexedRow(row, greys, image.pixels);
      continue;
    }
    for (std::size_t at = 0; at < row.size(); at += layout.bytesPerPixel) image.pixels += Grey(row, at);
  }
  return image;
}

std::string WriteBitmap(const GreyImage& image) {
  const std::size_t stride = Stride(image.width, 1);
  const std::size_t pixelsAt = kFileHeader + kInfoHeader + kGreys * kPaletteEntry;
  const auto pixelBytes = static_cast<std::uint32_t>(stride * image.height);
  std::string bytes;
  bytes.reserve(pixelsAt + pixelBytes);
  Put16(bytes, kMagic);
  Put32(bytes, static_cast<std::uint32_t>(pixelsAt) + pixelBytes);
  Put32(bytes, 0);
  Put32(bytes, static_cast<std::uint32_t>(pixelsAt));
  Put32(bytes, kInfoHeader);
  Put32(bytes, static_cast<std::uint32_t>(image.width));
  Put32(bytes, static_cast<std::uint32_t>(image.height));
  Put16(bytes, 1);  // plane
  Put16(bytes, 8);  // bits per pixel
  Put32(bytes, kUncompressed);
  Put32(bytes, pixelBytes);
  for (int unused = 0; unused < 4; ++unused) Put32(bytes, 0);  // resolution and colours used: not stated
  for (unsigned i = 0; i < kGreys; ++i) Put32(bytes, i * 0x010101u);
  for (std::size_t y = image.height; y-- > 0;) {
    bytes += image.Row(y);
    bytes.append(stride - image.width, '\0');
  }
  return bytes;
}

}  // namespace morvane::pixbake
