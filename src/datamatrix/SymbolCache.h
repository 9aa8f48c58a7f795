// The symbols of the preview: made by the symbol tool, kept in `\Temp\` until their .DM file changes.
#pragma once

#include <functional>
#include <set>
#include <string>

#include "common/RunAndWait.h"
#include "datamatrix/DataMatrixFile.h"
#include "datamatrix/ModuleRows.h"

namespace morvane::datamatrix {

// Longest content that is handed to the tool. The largest symbol holds 3116 characters, of four bytes
// each when all are escapes.
inline constexpr std::size_t kMaxContent = 65536;

struct Symbol {
  DataMatrixFile file;  // the defaults when the file could not be read
  ModuleRows rows;      // empty when no symbol could be made: a placeholder stands for it
};

// Content to encoded text: date codes, %% sections and escapes.
using Expansion = std::function<std::string(const std::string&)>;

// Names for which the tool failed in the pass at hand. A pass over many lines of one bad file waits for
// the tool once; the next pass starts with an empty set and tries again.
using FailedSymbols = std::set<std::string>;

// The symbol of a .DM file named in a document. The tool runs only when the file is newer than its cached
// symbol, or when that is missing or damaged. Reports nothing: a symbol that fails has no rows.
Symbol BuildSymbolCache(const common::ProcessRunner& runner, const std::string& name, const Expansion& expand,
                        FailedSymbols& failed);

}  // namespace morvane::datamatrix
