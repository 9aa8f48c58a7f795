// Sets the controller's clock.
#pragma once

#include <string>

#include "link/Wrappers.h"
#include "platform/Clock.h"

namespace morvane::link {

// "QT7250DATE mm/dd/yy hh:mm:ss"
std::string DateCommand(const platform::DateTime& time);
// Sends the present local time; says so when the line has left.
bool DownloadDateTime(const WrapperSources& sources, const platform::Clock& clock);

}  // namespace morvane::link
