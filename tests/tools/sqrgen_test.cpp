#define ZX_USE_UTF8
#include <ZXing/ReadBarcode.h>
#include <gtest/gtest.h>

#include <string>

#include "datamatrix/ModuleRows.h"
#include "tools/ToolFolder.h"

namespace morvane::test {
namespace {

using namespace std::string_literals;
using datamatrix::ModuleRows;

// Content of the symbol as a second library reads it from a picture of the rows.
std::string Decode(const ModuleRows& rows) {
  constexpr int kScale = 3;
  constexpr int kQuiet = 4;
  const int width = (static_cast<int>(rows.front().size()) + 2 * kQuiet) * kScale;
  const int height = (static_cast<int>(rows.size()) + 2 * kQuiet) * kScale;
  std::vector<std::uint8_t> picture(static_cast<std::size_t>(width * height), 255);
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < width; ++x) {
      const int row = y / kScale - kQuiet;
      const int column = x / kScale - kQuiet;
      if (row < 0 || column < 0 || row >= std::ssize(rows) || column >= std::ssize(rows[row])) continue;
      if (rows[row][column] == '*') picture[y * width + x] = 0;
    }
  }
  const auto hints = ZXing::DecodeHints().setFormats(ZXing::BarcodeFormat::DataMatrix).setIsPure(true);
  const auto result =
      ZXing::ReadBarcode(ZXing::ImageView(picture.data(), width, height, ZXing::ImageFormat::Lum), hints);
  if (!result.isValid()) return "(not read)";
  return std::string(result.bytes().asString());
}

std::string Digits(std::size_t count) {
  std::string digits;
  while (digits.size() < count) digits += static_cast<char>('0' + digits.size() * 7 % 10);
  return digits;
}

// Runs SQRGEN.EXE on `content` and gives the size of the symbol as a name; "" when it failed.
std::string Generate(ToolFolder& folder, const std::string& content, const std::string& argument) {
  folder.Write("in.txt", content);
  if (folder.Run("SQRGEN.EXE " + argument) != 0) return "";
  const std::string out = folder.Read("out.txt");
  const ModuleRows rows = datamatrix::ParseModuleRows(out);  // as the host reads them
  if (rows.empty()) return "(no rows)";
  EXPECT_EQ(out.size(), rows.size() * (rows.front().size() + 2));  // line ends, nothing else
  EXPECT_EQ(out.substr(0, 1) + out.substr(out.size() - 3), "**\r\n");
  EXPECT_EQ(Decode(rows), content);
  return std::to_string(rows.size()) + "x" + std::to_string(rows.front().size());
}

// Name, and the standard's capacity for digits.
struct Size {
  const char* name;
  std::size_t digits;
} constexpr kSizes[] = {
    {"10x10", 6},      {"12x12", 10},     {"14x14", 16},     {"16x16", 24},     {"18x18", 36},
    {"20x20", 44},     {"22x22", 60},     {"24x24", 72},     {"26x26", 88},     {"32x32", 124},
    {"36x36", 172},    {"40x40", 228},    {"44x44", 288},    {"48x48", 348},    {"52x52", 408},
    {"64x64", 560},    {"72x72", 736},    {"80x80", 912},    {"88x88", 1152},   {"96x96", 1392},
    {"104x104", 1632}, {"120x120", 2100}, {"132x132", 2608}, {"144x144", 3116}, {"8x18", 10},
    {"8x32", 20},      {"12x26", 32},     {"12x36", 44},     {"16x36", 64},     {"16x48", 98}};

TEST(Sqrgen, EverySizeHoldsItsCapacityAndReadsBack) {
  ToolFolder folder;
  for (const Size& size : kSizes) {
    SCOPED_TRACE(size.name);
    EXPECT_EQ(Generate(folder, "7", size.name), size.name);
    EXPECT_EQ(Generate(folder, Digits(size.digits), size.name), size.name);
    EXPECT_EQ(Generate(folder, Digits(size.digits + 1), size.name), "");
    EXPECT_EQ(folder.Read("out.txt"), "The text (" + std::to_string(size.digits + 1) +
                                          " characters) does not fit a symbol of " + size.name +
                                          " modules.\r\n");
  }
}

TEST(Sqrgen, AutomaticTakesTheSmallestSquare) {
  ToolFolder folder;
  for (const Size& size : {kSizes[0], kSizes[1], kSizes[9], kSizes[10], kSizes[23]}) {
    EXPECT_EQ(Generate(folder, Digits(size.digits), "Automatic"), size.name);
  }
  EXPECT_EQ(Generate(folder, "AB", "AUTOMATIC") + Generate(folder, "AB", "8X18"), "10x108x18");
}

TEST(Sqrgen, EveryByteIsContent) {
  std::string all;
  for (int i = 0; i < 256; ++i) all += static_cast<char>(i);
  ToolFolder folder;
  for (const std::string& content :
       {all, "\0\0end\0"s, "line\r\nline\n\\x1d ~1 ^FNC1 %%"s, "[)>\36"s + "06\35" + "ABC\36\4"}) {
    SCOPED_TRACE(testing::PrintToString(content));
    EXPECT_NE(Generate(folder, content, "Automatic"), "");
    EXPECT_EQ(Generate(folder, content, "80x80"), "80x80");
  }
}

TEST(Sqrgen, FailuresExplainThemselvesInTheOutput) {
  ToolFolder folder;
  EXPECT_GT(folder.Run("SQRGEN.EXE"), 0);
  EXPECT_EQ(folder.Read("out.txt"), "in.txt: File not found\r\n");
  using Case = std::array<std::string, 3>;  // argument, text, message
  for (const auto& [argument, content, message] :
       {Case{"Automatic", "", "There is no text to encode."},
        Case{"11x11", "text", "Unknown symbol size: 11x11"},
        Case{"20x20 more", "text", "Usage: SQRGEN.EXE [Automatic|ROWSxCOLUMNS]"},
        Case{"", std::string(100000, 'A'),
             "The text (100000 characters) does not fit a symbol of 144x144 modules."}}) {
    folder.Write("in.txt", content);
    folder.Write("out.txt", "\"* * \"\r\n");
    EXPECT_GT(folder.Run("SQRGEN.EXE " + argument), 0);
    EXPECT_EQ(folder.Read("out.txt"), message + "\r\n");
  }
}

}  // namespace
}  // namespace morvane::test
