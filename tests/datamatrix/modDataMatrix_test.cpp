#include "datamatrix/modDataMatrix.h"

#include <gtest/gtest.h>

namespace morvane::datamatrix {
namespace {

using namespace std::string_literals;

TEST(modDataMatrix, ReadsEveryFieldAndWritesTheSameBytes) {
  const std::string bytes =
      "20x20\r\n1\r\n .02 \r\n\r\n\r\n\r\n\r\n\r\n\r\nA\r\nB\n\0\xFF$$YY$$\\x1D@ENDDM;"s + "@ENDDM@";
  const DataMatrixFile file = ParseDataMatrix(bytes, MissingMarker::Empties);
  EXPECT_TRUE(file.Density == "20x20" && file.Reverse && file.Spacing == " .02 " && file.Delay.empty());
  EXPECT_EQ(file.Content, "A\r\nB\n\0\xFF$$YY$$\\x1D@ENDDM;"s);
  EXPECT_EQ(FormatDataMatrix(file), bytes);
}

TEST(modDataMatrix, ContentEndsAtTheFirstMarker) {
  const std::string head = "Automatic\n0\n.01\n1\n\n\n\n\n\n";
  using Case = std::array<const char*, 3>;
  for (const auto& [rest, preview, editor] :
       {Case{"A@ENDDM@B@ENDDM@", "A", "A"}, Case{"@ENDDM@", "", ""}, Case{"A@ENDDM", "", "A@ENDDM"},
        Case{"\r\n\r\n", "", "\r\n\r\n"}}) {
    EXPECT_EQ(ParseDataMatrix(head + rest, MissingMarker::Empties).Content, preview) << rest;
    EXPECT_EQ(ParseDataMatrix(head + rest, MissingMarker::KeepsRest).Content, editor) << rest;
  }
}

TEST(modDataMatrix, AShortFileLeavesDefaults) {
  const auto rewritten = [](const char* bytes) {
    return FormatDataMatrix(ParseDataMatrix(bytes, MissingMarker::KeepsRest));
  };
  const std::string behind = "\r\n0\r\n.01\r\n1\r\n\r\n\r\n\r\n\r\n\r\n@ENDDM@";
  EXPECT_EQ(rewritten(""), "Automatic" + behind);
  // A line ends at its line feed only; a carriage return is dropped wherever it stands.
  EXPECT_EQ(rewritten("8x\r18\r\n0\n"), "8x18" + behind);
}

TEST(modDataMatrix, PlaceholderHasTheSizeOfItsDensity) {
  using Case = std::tuple<const char*, int, int>;
  for (const auto& [density, rows, columns] :
       {Case{"Automatic", 20, 20}, Case{"8x32", 8, 32}, Case{"144x144", 144, 144}, Case{"", 20, 20},
        Case{"10x", 20, 20}, Case{"-5x9", 20, 20}}) {
    EXPECT_EQ(PlaceholderSize(density).rows, rows) << density;
    EXPECT_EQ(PlaceholderSize(density).columns, columns) << density;
  }
}

TEST(modDataMatrix, DefaultsAndAReversedSymbolWithoutSpacing) {
  DataMatrixFile file;
  EXPECT_TRUE(ModuleSpacing(file) == 0.01F && DarkModule(file) == '*');
  file.Spacing.clear();
  file.Reverse = true;
  EXPECT_TRUE(ModuleSpacing(file) == 0.001F && DarkModule(file) == ' ');
}

}  // namespace
}  // namespace morvane::datamatrix
