// The edge between the core's single-byte text, Windows-1252, and UTF-8.
#pragma once

#include <string>
#include <string_view>

namespace morvane::common {

// Windows-1252 to UTF-8 and back. The five codes without a character map to the control character of
// the same number, so every byte survives a round trip. Characters outside the code page, and bytes
// that are no UTF-8, become '?'.
std::string ToUtf8(std::string_view text);
std::string FromUtf8(std::string_view utf8);

bool IsUtf8(std::string_view bytes);
// True when the text survives FromUtf8: well formed, and every character stands in the code page.
bool IsExpressible(std::string_view utf8);

}  // namespace morvane::common
