#include "datamatrix/ModuleRows.h"

#include <gtest/gtest.h>

namespace morvane::datamatrix {
namespace {

TEST(ModuleRows, ReadsOneFieldForEachRow) {
  const struct {
    std::string bytes;
    ModuleRows rows;
  } cases[] = {{"* *\r\n***\r\n", {"* *", "***"}},
               {"\"  *\"\r\n\"*  \"\r\n", {"  *", "*  "}},  // quotes keep blanks
               {"   * *\n***", {"* *", "***"}},             // without them leading blanks are lost
               {"*  \r\n***", {"*  ", "***"}},              // trailing ones are not
               {"***,* *\r\n", {"***", "* *"}},             // a comma ends a field
               {"  \"***\" rest,* *\r\n", {"***", "* *"}},
               {"\"***\r\n* *", {"***", "* *"}},  // an open quote ends with its line
               {"***\r\n\r\n\r\n", {"***"}},
               // No symbol at all.
               {"", {}},
               {"\r\n", {}},
               {"***\r\n**\r\n", {}},
               {"***\r\n  *\r\n", {}},
               {"***\r\n\r\n***\r\n", {}},
               {"***,\r\n", {}},
               {"*#*\r\n", {}},
               {"\"* *\"\"\r\n\"*\x1A*\"", {}},
               {std::string("*\0*", 3), {}},
               {"SQRGEN: text too long\r\n", {}}};
  for (const auto& c : cases) EXPECT_EQ(ParseModuleRows(c.bytes), c.rows) << c.bytes;
}

TEST(ModuleRows, SizeIsBounded) {
  std::string column;
  for (std::size_t i = 0; i < kMaxModules; ++i) column += "*\n";
  EXPECT_EQ(ParseModuleRows(column).size(), kMaxModules);
  EXPECT_TRUE(ParseModuleRows(column + "*").empty());
  EXPECT_EQ(ParseModuleRows(std::string(kMaxModules, '*')).size(), 1U);
  EXPECT_TRUE(ParseModuleRows(std::string(kMaxModules + 1, '*')).empty());
}

}  // namespace
}  // namespace morvane::datamatrix
