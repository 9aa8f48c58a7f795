#include "datamatrix/ModuleRows.h"

#include <gtest/gtest.h>

namespace morvane::datamatrix {
namespace {

TEST(ModuleRows, ReadsOneFieldForEachRow) {
  // Quotes keep blanks; without them leading ones are lost, trailing ones are not. A comma ends a field, and
  // an open quote ends with its line.
  using Case = std::pair<const char*, ModuleRows>;
  for (const auto& [bytes, rows] :
       {Case{"* *\r\n***\r\n", {"* *", "***"}}, Case{"\"  *\"\r\n\"*  \"\r\n", {"  *", "*  "}},
        Case{"   * *\n***", {"* *", "***"}}, Case{"*  \r\n***", {"*  ", "***"}},
        Case{"  \"***\" rest,* *\r\n", {"***", "* *"}}, Case{"\"***\r\n* *", {"***", "* *"}},
        Case{"***\r\n\r\n\r\n", {"***"}}}) {
    EXPECT_EQ(ParseModuleRows(bytes), rows) << bytes;
  }
  for (const char* none : {"", "\r\n", "***\r\n**\r\n", "***\r\n  *\r\n", "***\r\n\r\n***\r\n", "***,\r\n",
                           "*#*\r\n", "\"* *\"\"\r\n\"*\x1A*\"", "SQRGEN: text too long\r\n"}) {
    EXPECT_TRUE(ParseModuleRows(none).empty()) << none;
  }
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
