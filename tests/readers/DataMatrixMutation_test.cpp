#include <gtest/gtest.h>

#include "datamatrix/modDataMatrix.h"
#include "support/Mutator.h"

namespace morvane::datamatrix {
namespace {

// What was read is written in a form that reads and writes the same.
void Read(const std::string& bytes) {
  const DataMatrixFile file = ParseDataMatrix(bytes, MissingMarker::Empties);
  const std::string written = FormatDataMatrix(file);
  ASSERT_EQ(FormatDataMatrix(ParseDataMatrix(written, MissingMarker::Empties)), written);
  const SymbolSize size = PlaceholderSize(file.Density);
  ASSERT_TRUE(size.rows > 0 && size.rows < 32768 && size.columns > 0 && size.columns < 32768);
  ModuleSpacing(file);
  ASSERT_LE(ParseDataMatrix(bytes, MissingMarker::KeepsRest).Content.size(), bytes.size());
}

TEST(DataMatrixMutation, AnyBytes) {
  test::RunMutations({"20x20\r\n1\r\n.02\r\n1\r\n\r\n\r\n\r\n\r\n\r\n[)>\\x1E12\\x1D$$YY$$\r\n%%A.1%%@ENDDM@",
                      FormatDataMatrix({})},
                     Read);
}

TEST(DataMatrixMutation, HugeLines) {
  test::RunHugeLine("", "9", Read);
  test::RunHugeLine("Automatic\n0\n.01\n1\n\n\n\n\n\n", "@ENDDM", Read);
}

}  // namespace
}  // namespace morvane::datamatrix
