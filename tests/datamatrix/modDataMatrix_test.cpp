#include "datamatrix/modDataMatrix.h"

#include <gtest/gtest.h>

namespace morvane::datamatrix {
namespace {

using namespace std::string_literals;

TEST(modDataMatrix, ReadsEveryFieldAndWritesTheSameBytes) {
  const std::string bytes =
      "20x20\r\n1\r\n .02 \r\n\r\n\r\n\r\n\r\n\r\n\r\nA\r\nB\n\0\xFF$$YY$$\\x1D@ENDDM;"s + "@ENDDM@";
  const DataMatrixFile file = ParseDataMatrix(bytes, MissingMarker::Empties);
  EXPECT_EQ(file.Density, "20x20");
  EXPECT_TRUE(file.Reverse);
  EXPECT_EQ(file.Spacing, " .02 ");
  EXPECT_EQ(file.Delay, "");
  EXPECT_EQ(file.Content, "A\r\nB\n\0\xFF$$YY$$\\x1D@ENDDM;"s);
  EXPECT_EQ(FormatDataMatrix(file), bytes);
  EXPECT_EQ(FormatDataMatrix(DataMatrixFile{}), "Automatic\r\n0\r\n.01\r\n1\r\n\r\n\r\n\r\n\r\n\r\n@ENDDM@");
}

TEST(modDataMatrix, ContentEndsAtTheFirstMarker) {
  const std::string head = "Automatic\n0\n.01\n1\n\n\n\n\n\n";
  const struct {
    std::string rest;
    std::string preview;
    std::string editor;
  } cases[] = {{"A@ENDDM@B@ENDDM@", "A", "A"},
               {"@ENDDM@", "", ""},
               {"A@ENDDM", "", "A@ENDDM"},
               {"", "", ""},
               {"\r\n\r\n", "", "\r\n\r\n"}};
  for (const auto& c : cases) {
    SCOPED_TRACE(c.rest);
    EXPECT_EQ(ParseDataMatrix(head + c.rest, MissingMarker::Empties).Content, c.preview);
    EXPECT_EQ(ParseDataMatrix(head + c.rest, MissingMarker::KeepsRest).Content, c.editor);
  }
}

TEST(modDataMatrix, AShortFileLeavesDefaults) {
  const DataMatrixFile empty = ParseDataMatrix("", MissingMarker::KeepsRest);
  EXPECT_EQ(FormatDataMatrix(empty), FormatDataMatrix(DataMatrixFile{}));
  // A line ends at its line feed only; a carriage return is dropped wherever it stands.
  const DataMatrixFile file = ParseDataMatrix("8x\r18\r\n0\n", MissingMarker::KeepsRest);
  EXPECT_EQ(file.Density, "8x18");
  EXPECT_EQ(file.Spacing, ".01");
  EXPECT_EQ(file.Delay, "1");
}

TEST(modDataMatrix, PlaceholderHasTheSizeOfItsDensity) {
  const struct {
    const char* density;
    int rows, columns;
  } cases[] = {{"Automatic", 20, 20}, {"8x32", 8, 32},  {"144x144", 144, 144}, {"", 20, 20},
               {"10x", 20, 20},       {"-5x9", 20, 20}, {"junk", 20, 20}};
  for (const auto& c : cases) {
    EXPECT_EQ(PlaceholderSize(c.density).rows, c.rows) << c.density;
    EXPECT_EQ(PlaceholderSize(c.density).columns, c.columns) << c.density;
  }
}

TEST(modDataMatrix, SpacingAndDarkCharacter) {
  DataMatrixFile file;
  EXPECT_EQ(ModuleSpacing(file), 0.01F);
  EXPECT_EQ(DarkModule(file), '*');
  file.Spacing.clear();
  file.Reverse = true;
  EXPECT_EQ(ModuleSpacing(file), 0.001F);
  EXPECT_EQ(DarkModule(file), ' ');
}

}  // namespace
}  // namespace morvane::datamatrix
