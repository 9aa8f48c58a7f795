// Names of the work files in `\Temp\` that are made from a document's file and shown in its place.
#pragma once

#include <string>
#include <string_view>

namespace morvane::common {

// The program name `\Temp\LOGO.BMP` for "LOGO.RAS" and the extension ".BMP": the last extension is
// exchanged. A folder in the name becomes part of the file name, so that two files never share one.
std::string ScratchName(std::string_view name, std::string_view extension);

}  // namespace morvane::common
