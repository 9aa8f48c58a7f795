#include <gtest/gtest.h>

#include <string>

#include "pixbake/Bitmap.h"
#include "pixbake/Checksum.h"
#include "pixbake/LittleEndian.h"
#include "pixbake/Ras.h"
#include "support/Mutator.h"

namespace morvane::test {
namespace {

using namespace std::string_literals;
using pixbake::FormatError;
using pixbake::GreyImage;

// Puts a 32-bit number into a header.
std::string Patched(std::string bytes, std::size_t at, std::uint32_t value) {
  std::string number;
  pixbake::Put32(number, value);
  return bytes.replace(at, 4, number);
}

std::string WithChecksum(std::string raster) {
  raster.resize(raster.size() - 4);
  pixbake::Put32(raster, pixbake::Crc32(raster));
  return raster;
}

template <typename Read>
std::string Failure(Read read, const std::string& bytes) {
  try {
    read(bytes);
  } catch (const FormatError& error) {
    return error.what();
  }
  return "";
}

TEST(RasterFormats, ARasterByteForByte) {
  // One row of "as they are", one of a run longer than a control byte can say, and a run behind others.
  const GreyImage image{131, 2, "ab"s + std::string(129, 'c') + std::string(131, 'd')};
  const std::string body =
      "MRAS\x01\0\x08\0\x83\0\0\0\x02\0\0\0"s + "\x01" + "ab\xFF" + "c\xFF" + "d\x01" + "dd";
  std::string expected = body;
  pixbake::Put32(expected, pixbake::Crc32(body));
  EXPECT_EQ(pixbake::Crc32("123456789"), 0xCBF43926u);  // the check value of the checksum's definition
  EXPECT_EQ(pixbake::WriteRas(image), expected);
  EXPECT_EQ(pixbake::ReadRas(expected), image);
}

// File header with the pixels' place, info header, then colour table and pixels.
std::string Bitmap(std::uint32_t pixelsAt, int width, int height, std::uint32_t bits, std::uint32_t colours,
                   const std::string& rest) {
  std::string bytes = "BM"s + std::string(52, '\0');
  using Field = std::pair<std::size_t, std::uint32_t>;
  for (const auto& [at, value] : {Field{10, pixelsAt}, Field{14, 40}, Field{18, width}, Field{22, height},
                                  Field{26, 1}, Field{28, bits}, Field{46, colours}}) {
    bytes = Patched(bytes, at, value);
  }
  return bytes + rest;
}

using Lie = std::pair<std::string, const char*>;  // bytes and the message about them

TEST(RasterFormats, BitmapsOfEveryKind) {
  const std::string colours = "\xFF\0\0\0\0\xFF\0\0\0\0\xFF\0"s;  // blue, green, red
  using Case = std::pair<std::string, GreyImage>;
  for (const auto& [bytes, image] :
       {Case{Bitmap(54, 3, 1, 24, 0,
                    "\xFF\0\0\0\xFF\0\0\0\xFF"
                    "fil"s),
             {3, 1, "\x1D\x96\x4C"}},
        Case{Bitmap(56, 1, 2, 32, 0, "..\x10\x10\x10.\x20\x20\x20."s), {1, 2, "\x20\x10"}},
        Case{Bitmap(66, 2, -2, 8, 3, colours + "\0\1..\2\0.."s), {2, 2, "\x1D\x96\x4C\x1D"}}}) {
    EXPECT_EQ(pixbake::ReadBitmap(bytes), image);
  }
  const std::string good = pixbake::WriteBitmap({2, 1, "\x10\x20"});
  EXPECT_EQ(good.size(), 1078u + 4u);
  const char* const outside = "The bitmap's pixels lie outside the file";
  const char* const kinds = "Only uncompressed bitmaps of 8, 24 or 32 bits are read";
  for (const auto& [bytes, message] :
       {Lie{Bitmap(66, 2, 1, 8, 3, colours + "\0\3.."s),
            "A pixel has a colour that is not in the bitmap's table"},
        Lie{Patched(good, 10, 0xFFFFFFFF), outside},
        Lie{Patched(good, 14, 12), "The bitmap's header is not known"},
        Lie{Patched(good, 18, 0), "The picture has no pixels"},
        Lie{Patched(good, 18, 0x80000000), "The bitmap's width is negative"},
        Lie{Patched(good, 22, 0x80000000), "The picture is too large (2 x 2147483648)"},
        Lie{Patched(good, 22, 32767), "The bitmap ends within its pixels"}, Lie{Patched(good, 28, 4), kinds},
        Lie{Patched(good, 46, 257), "The bitmap's colour table is too long"},
        Lie{"", "The bitmap ends within its header"}}) {
    EXPECT_EQ(Failure(pixbake::ReadBitmap, bytes), message);
  }
}

TEST(RasterFormats, RastersThatLie) {
  const std::string good = pixbake::WriteRas({5, 2, "aaaaabbbbb"});  // two runs of two bytes
  for (const auto& [bytes, message] :
       {Lie{good + ".", "The raster is damaged or cut short"},
        Lie{Patched(good, 4, 2), "The raster is of a version that is not known"},
        Lie{"MRAS", "The raster ends within its header"},
        Lie{WithChecksum(Patched(good, 8, 0)), "The picture has no pixels"},
        Lie{WithChecksum(Patched(good, 8, 0xFFFFFFFF)), "The picture is too large (4294967295 x 2)"},
        Lie{WithChecksum(Patched(Patched(good, 8, 8192), 12, 8192)), "The raster ends within its pixels"},
        Lie{WithChecksum(Patched(good, 8, 4)), "A row of the raster is too long"},
        Lie{WithChecksum(Patched(good, 12, 1)), "The raster has more data than pixels"},
        Lie{WithChecksum(Patched(good, 16, 0x62046183)), "The raster ends within its pixels"}}) {
    EXPECT_EQ(Failure(pixbake::ReadRas, bytes), message);
  }
}

// Whatever is read must be a whole picture; everything else must be refused in words.
template <typename Read>
void ReadWholeOrRefuse(Read read, const std::string& bytes) {
  try {
    const GreyImage image = read(bytes);
    ASSERT_EQ(image.pixels.size(), image.width * image.height);
    ASSERT_FALSE(image.pixels.empty());
  } catch (const FormatError& error) {
    ASSERT_STRNE(error.what(), "");
  }
}

TEST(RasterFormats, DamagedBitmaps) {
  const GreyImage image{5, 3, "aaaaabcdefggggg"};
  const std::string grey = pixbake::WriteBitmap(image);
  const std::string shortTable = Patched(Patched(grey, 46, 110), 10, 54 + 440).erase(54 + 440, 146 * 4);
  ASSERT_EQ(pixbake::ReadBitmap(shortTable), image);
  RunMutations({grey, shortTable},
               [](const std::string& bytes) { ReadWholeOrRefuse(pixbake::ReadBitmap, bytes); });
}

TEST(RasterFormats, DamagedRasters) {
  const std::string raster =
      pixbake::WriteRas({19, 5, std::string(40, 'a') + "bcdefghij" + std::string(46, 'k')});
  RunMutations({raster}, [](const std::string& bytes) {
    ReadWholeOrRefuse(pixbake::ReadRas, bytes);
    // Without a fitting checksum hardly any damage would get past the first look.
    if (bytes.size() > 4) ReadWholeOrRefuse(pixbake::ReadRas, WithChecksum(bytes));
  });
}

}  // namespace
}  // namespace morvane::test
