// Bitmap files (.BMP) as the picture import writes them and the preview reads them.
#pragma once

#include <string>
#include <string_view>

#include "pixbake/GreyImage.h"

namespace morvane::pixbake {

// Reads an uncompressed bitmap of 8 (with a colour table), 24 or 32 bits a pixel, rows from the bottom or
// from the top. Colours become grey by the weights 0.299 red, 0.587 green, 0.114 blue (ITU-R BT.601), so
// a grey stays the grey it is. Throws FormatError.
GreyImage ReadBitmap(std::string_view bytes);

// An 8-bit bitmap with a colour table of 256 greys, rows from the bottom, each filled with zeros up to a
// multiple of 4 bytes; the pixels begin at byte 1078.
std::string WriteBitmap(const GreyImage& image);

}  // namespace morvane::pixbake
