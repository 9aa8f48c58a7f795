// The line that ends a file on the wire.
#pragma once

#include <string>

#include "common/text/Text.h"

namespace morvane::link {

// Ends every file of a download and every reply; G-code jobs end otherwise.
inline std::string EndMarker(const std::string& localPath) {
  return common::ToUpper(localPath).find(".JOB") != std::string::npos ? "ENDJOB" : "ENDFILE";
}

}  // namespace morvane::link
