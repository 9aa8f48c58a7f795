#include "common/text/Base64.h"

#include <algorithm>
#include <cstdint>

namespace morvane::common {

std::string Base64(std::string_view bytes) {
  constexpr std::string_view kDigits = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
  constexpr std::size_t kGroup = 3;
  std::string text;
  text.reserve((bytes.size() + 2) / kGroup * 4);
  for (std::size_t at = 0; at < bytes.size(); at += kGroup) {
    const std::size_t count = std::min(kGroup, bytes.size() - at);
    std::uint32_t group = 0;
    for (std::size_t i = 0; i < kGroup; ++i) {
      group = group << 8U | (i < count ? static_cast<unsigned char>(bytes[at + i]) : 0U);
    }
    for (std::size_t i = 0; i <= kGroup; ++i)
      text += i <= count ? kDigits[group >> (18U - 6U * i) & 63U] : '=';
  }
  return text;
}

}  // namespace morvane::common
