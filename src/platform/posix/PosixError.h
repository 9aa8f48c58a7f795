// From the system's error numbers to the few kinds that the program tells apart.
#pragma once

#include <string>

#include "platform/Error.h"

namespace morvane::platform {

// `number` is an errno value that a call on `path` left behind.
Error PosixError(int number, const std::string& path);

}  // namespace morvane::platform
