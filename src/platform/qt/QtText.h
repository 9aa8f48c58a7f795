// The one place where the core's single-byte text becomes the toolkit's Unicode text and back.
#pragma once

#include <QString>
#include <string>
#include <string_view>

namespace morvane::platform {

// Text in the core's code page; every byte survives the round trip.
QString ToQt(std::string_view text);
// Characters outside the code page become '?'.
std::string FromQt(const QString& text);

// Native paths are UTF-8 and take no part in the code page.
QString PathToQt(std::string_view nativePath);
std::string PathFromQt(const QString& nativePath);

}  // namespace morvane::platform
