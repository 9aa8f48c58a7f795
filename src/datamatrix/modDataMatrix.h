// Reads and writes .DM files, and answers what a symbol's settings mean for its drawing.
#pragma once

#include <string>
#include <string_view>

#include "common/files/Files.h"
#include "datamatrix/DataMatrixFile.h"

namespace morvane::datamatrix {

inline constexpr std::string_view kAutomatic = "Automatic";
inline constexpr std::string_view kDensities[] = {
    kAutomatic, "10x10", "12x12", "14x14", "16x16", "18x18",   "20x20",   "22x22",
    "24x24",    "26x26", "32x32", "36x36", "40x40", "44x44",   "48x48",   "52x52",
    "64x64",    "72x72", "80x80", "88x88", "96x96", "104x104", "120x120", "132x132",
    "144x144",  "8x18",  "8x32",  "12x26", "12x36", "16x36",   "16x48"};

// What a file without its end marker holds: the editor shows the rest of the file, the preview nothing.
enum class MissingMarker { KeepsRest, Empties };

// Takes any bytes. Lines that the file does not reach keep their defaults.
DataMatrixFile ParseDataMatrix(std::string_view bytes, MissingMarker missing);
// The same for a name out of a document. Throws when the file cannot be read or lies outside the base
// directory.
DataMatrixFile ReadDataMatrix(const common::Files& files, std::string_view name, MissingMarker missing);

// The bytes of the file; the content goes out byte for byte.
std::string FormatDataMatrix(const DataMatrixFile& file);
// Checked save: throws the run-time error of the failure and leaves the old file whole.
void WriteDataMatrix(const common::Files& files, std::string_view name, const DataMatrixFile& file);

struct SymbolSize {
  int rows = 0;
  int columns = 0;
};
// Modules that a symbol takes up while it cannot be made. A density that names no size, `Automatic`
// included, counts as 20 by 20.
SymbolSize PlaceholderSize(std::string_view density);
// Size of one module; 0.001 when the text is empty.
float ModuleSpacing(const DataMatrixFile& file);
// The character of a symbol's rows that is drawn.
char DarkModule(const DataMatrixFile& file);

}  // namespace morvane::datamatrix
