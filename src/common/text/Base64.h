// Binary bytes as text, for documents that embed pictures.
#pragma once

#include <string>
#include <string_view>

namespace morvane::common {

std::string Base64(std::string_view bytes);

}  // namespace morvane::common
