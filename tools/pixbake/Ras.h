// Raster files (.RAS): the grey picture that the machine reproduces dot by dot. docs/ras-format.md tells
// the layout.
#pragma once

#include <string>
#include <string_view>

#include "pixbake/GreyImage.h"

namespace morvane::pixbake {

// Throws FormatError for anything but a whole, undamaged raster file. Memory stays within 65 times the
// number of bytes given, whatever the header says.
GreyImage ReadRas(std::string_view bytes);

std::string WriteRas(const GreyImage& image);

}  // namespace morvane::pixbake
