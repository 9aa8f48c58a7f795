#include "sqrgen/Symbol.h"

#include <zint.h>

#include <algorithm>
#include <iterator>
#include <memory>

#include "common/text/Text.h"

namespace morvane::sqrgen {
namespace {

// In the order of the encoder's size numbers, which begin at 1 with the first size.
constexpr std::string_view kSizes[] = {
    "Automatic", "10x10", "12x12", "14x14", "16x16", "18x18",   "20x20",   "22x22",
    "24x24",     "26x26", "32x32", "36x36", "40x40", "44x44",   "48x48",   "52x52",
    "64x64",     "72x72", "80x80", "88x88", "96x96", "104x104", "120x120", "132x132",
    "144x144",   "8x18",  "8x32",  "12x26", "12x36", "16x36",   "16x48",
};

int SizeNumber(std::string_view size) {
  const auto found = std::find_if(std::begin(kSizes), std::end(kSizes), [&](std::string_view each) {
    return common::EqualIgnoringCase(each, size);
  });
  if (found == std::end(kSizes)) throw SymbolError("Unknown symbol size: " + std::string(size));
  return static_cast<int>(found - std::begin(kSizes));
}

std::string DoesNotFit(std::size_t length, int sizeNumber) {
  const std::string_view size = kSizes[sizeNumber == 0 ? 24 : sizeNumber];
  return "The text (" + std::to_string(length) + " characters) does not fit a symbol of " +
         std::string(size) + " modules.";
}

using ZintSymbol = std::unique_ptr<zint_symbol, void (*)(zint_symbol*)>;

std::vector<std::string> Rows(const zint_symbol& symbol) {
  std::vector<std::string> rows;
  for (int y = 0; y < symbol.rows; ++y) {
    std::string row(static_cast<std::size_t>(symbol.width), kLight);
    for (int x = 0; x < symbol.width; ++x) {
      if ((symbol.encoded_data[y][x / 8] >> (x % 8)) & 1) row[static_cast<std::size_t>(x)] = kDark;
    }
    rows.push_back(std::move(row));
  }
  return rows;
}

}  // namespace

std::vector<std::string> MakeSymbol(std::string_view content, std::string_view size) {
  const int sizeNumber = SizeNumber(size);
  if (content.empty()) throw SymbolError("There is no text to encode.");
  if (content.size() > kMaxContent) throw SymbolError(DoesNotFit(content.size(), sizeNumber));

  ZintSymbol symbol(ZBarcode_Create(), &ZBarcode_Delete);
  if (!symbol) throw SymbolError("Out of memory");
  symbol->symbology = BARCODE_DATAMATRIX;
  symbol->input_mode = DATA_MODE;  // bytes as they are, without escapes or a code page
  symbol->option_2 = sizeNumber;
  if (sizeNumber == 0) symbol->option_3 = DM_SQUARE;
  const std::string bytes(content);
  const int result = ZBarcode_Encode(symbol.get(), reinterpret_cast<const unsigned char*>(bytes.data()),
                                     static_cast<int>(bytes.size()));
  if (result == ZINT_ERROR_TOO_LONG) throw SymbolError(DoesNotFit(content.size(), sizeNumber));
  if (result >= ZINT_ERROR) throw SymbolError(symbol->errtxt);
  return Rows(*symbol);
}

}  // namespace morvane::sqrgen
