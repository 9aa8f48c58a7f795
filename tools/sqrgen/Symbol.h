// Encodes bytes as a Data Matrix symbol (ECC 200, ISO/IEC 16022): the one place that knows the encoder.
#pragma once

#include <cstddef>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace morvane::sqrgen {

// Thrown with a sentence for the operator.
class SymbolError : public std::runtime_error {
  using std::runtime_error::runtime_error;
};

inline constexpr char kDark = '*';
inline constexpr char kLight = ' ';
// Digits of the fullest symbol, 144x144. Nothing longer can ever fit.
inline constexpr std::size_t kMaxContent = 3116;

// Module rows from the top, one character a module, all of one length, without a quiet zone. `size` is
// "ROWSxCOLUMNS", or "Automatic" for the smallest square symbol that holds the content; case does not
// matter. Every byte is content. Throws SymbolError: unknown size, no content, content that does not fit.
std::vector<std::string> MakeSymbol(std::string_view content, std::string_view size);

}  // namespace morvane::sqrgen
