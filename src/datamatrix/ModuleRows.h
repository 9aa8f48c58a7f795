// The rows of modules that the symbol tool writes: '*' and blanks, all rows of one length.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace morvane::datamatrix {

using ModuleRows = std::vector<std::string>;

// Most rows, and most modules in a row, that are taken: the largest symbol has 144 and may have a margin.
inline constexpr std::size_t kMaxModules = 256;

// Reads one field for each row: a field in double quotes keeps its blanks, another one loses its leading
// blanks and ends at a comma. Empty lines behind the last row do not count. Gives no rows at all when
// the bytes are no symbol: rows of unequal length, too many of them, another character.
ModuleRows ParseModuleRows(std::string_view bytes);

}  // namespace morvane::datamatrix
