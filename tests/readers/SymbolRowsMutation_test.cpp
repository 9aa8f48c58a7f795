#include <gtest/gtest.h>

#include "datamatrix/ModuleRows.h"
#include "support/Mutator.h"

namespace morvane::datamatrix {
namespace {

// Whatever comes back can be drawn: equal rows of modules, within the limit.
void Read(const std::string& bytes) {
  const ModuleRows rows = ParseModuleRows(bytes);
  ASSERT_LE(rows.size(), kMaxModules);
  for (const std::string& row : rows) {
    ASSERT_EQ(row.size(), rows.front().size());
    ASSERT_TRUE(!row.empty() && row.size() <= kMaxModules);
    ASSERT_EQ(row.find_first_not_of("* "), std::string::npos);
  }
}

TEST(SymbolRowsMutation, AnyBytes) {
  test::RunMutations({"\"* * \"\r\n\"*  *\"\r\n\"**  \"\r\n\"****\"\r\n", "* *\n***,* *\n"}, Read);
}

TEST(SymbolRowsMutation, HugeLines) {
  test::RunHugeLine("", "*", Read);
  test::RunHugeLine("* *\n", "* *,", Read);
  test::RunHugeLine("\"* *", " ", Read);
  test::RunHugeLine("* *", "\r\n", Read);
}

}  // namespace
}  // namespace morvane::datamatrix
