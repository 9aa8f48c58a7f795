#include "datamatrix/SymbolCache.h"

#include <cstdint>
#include <string_view>
#include <vector>

#include "common/RunTimeError.h"
#include "common/files/ScratchName.h"
#include "datamatrix/modDataMatrix.h"

namespace morvane::datamatrix {
namespace {

constexpr std::string_view kTool = "SQRGEN.EXE";
constexpr std::string_view kInput = "in.txt";
constexpr std::string_view kOutput = "out.txt";

// What the tool wrote for the text; empty when it failed. Throws when a file cannot be read or written.
std::string RunTool(const common::ProcessRunner& runner, const std::string& density,
                    const std::string& text) {
  const common::Files& files = runner.files;
  files.RemoveQuietly(kInput);
  files.RemoveQuietly(kOutput);
  files.WriteStraight(kInput, text);
  std::vector<std::string> arguments;
  if (!density.empty()) arguments.push_back(density);
  if (runner.RunAndWait(kTool, arguments) != 0) return {};
  std::string output = files.Read(kOutput);
  files.RemoveQuietly(kInput);
  files.RemoveQuietly(kOutput);
  return output;
}

// Rows of the cache unless the symbol's file is newer; empty also when the cache is missing or damaged.
ModuleRows CachedRows(const common::Files& files, const std::string& cache, std::int64_t changed) {
  if (!files.FileExists(cache) || changed > files.ModifiedTime(cache)) return {};
  return *files.ReadAs<ParseModuleRows>(cache);
}

// Makes the symbol of the file at `path` and caches it.
ModuleRows NewRows(const common::ProcessRunner& runner, const std::string& path, const std::string& density,
                   const std::string& text, const std::string& cache) {
  const common::Files& files = runner.files;
  const std::int64_t changed = files.ModifiedTime(path);
  const std::string output = RunTool(runner, density, text);
  ModuleRows rows = ParseModuleRows(output);
  // A file that was saved while the tool ran needs another symbol in the next pass.
  if (rows.empty() || files.ModifiedTime(path) != changed) return rows;
  files.EnsureTemp();
  files.Save(cache, output);  // checked, so that half a symbol never stands in the cache
  return rows;
}

}  // namespace

Symbol BuildSymbolCache(const common::ProcessRunner& runner, const std::string& name, const Expansion& expand,
                        FailedSymbols& failed) {
  Symbol symbol;
  try {
    const std::string path = runner.files.ResolveInside(name);
    symbol.file = ReadDataMatrix(runner.files, name, MissingMarker::Empties);
    if (symbol.file.Content.size() > kMaxContent) return symbol;
    const std::string text = expand(symbol.file.Content);
    const std::string cache = common::ScratchName(name, ".out");
    symbol.rows = CachedRows(runner.files, cache, runner.files.ModifiedTime(path));
    if (!symbol.rows.empty() || !failed.insert(name).second) return symbol;
    symbol.rows = NewRows(runner, path, symbol.file.Density, text, cache);
    if (!symbol.rows.empty()) failed.erase(name);
  } catch (const common::RunTimeError&) {
    // No rows: the placeholder is drawn.
  }
  return symbol;
}

}  // namespace morvane::datamatrix
