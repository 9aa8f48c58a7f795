#include <gmock/gmock.h>

#include <algorithm>
#include <cctype>

#include "house/Tree.h"

namespace morvane::house {
namespace {

// A source that holds a table and may be as long as it is.
constexpr std::string_view kTable = "src/app/menu/MenuTable.cpp";

TEST(Lengths, OfSourcesAndFunctions) {
  std::vector<std::size_t> lengths;
  Strings tooLong;
  std::size_t functions = 0;
  for (const TreeFile& file : ReadTree()) {
    if (!file.IsProduct()) continue;
    const Strings lines = file.Lines();
    if (file.Is(".cpp") && file.path != kTable) lengths.push_back(lines.size());
    if (file.Is(".cpp") && file.path != kTable && lines.size() > 600) tooLong.push_back(file.path);
    // The layout is fixed: a function's head begins in the first column, and so does its closing brace.
    std::size_t head = 0;  // 1 for the first line; 0 outside of a function
    for (std::size_t i = 0; i < lines.size(); ++i) {
      const bool inFirstColumn = !lines[i].empty() && std::isalpha(static_cast<unsigned char>(lines[i][0]));
      if (inFirstColumn)
        head = lines[i].find('(') == std::string::npos || lines[i].ends_with(';') ? 0 : i + 1;
      if (lines[i] != "}" || head == 0) continue;
      ++functions;
      if (i + 1 - head > 80) tooLong.push_back(file.path + ": " + lines[head - 1]);
      head = 0;
    }
  }
  ASSERT_GT(lengths.size(), 100U);
  EXPECT_GT(functions, 200U);
  std::sort(lengths.begin(), lengths.end());
  EXPECT_LT(lengths[lengths.size() / 2], 120U);
  EXPECT_LT(lengths[lengths.size() * 95 / 100], 400U);
  EXPECT_THAT(tooLong, testing::IsEmpty());
}

TEST(Headers, TellWhyTheyExistAndAreReadOnce) {
  Strings wrong;
  for (const TreeFile& file : ReadTree()) {
    const bool once = file.text.find("\n#pragma once\n") != std::string::npos;
    if (file.Is(".h") && !(file.text.starts_with("// ") && once)) wrong.push_back(file.path);
  }
  EXPECT_THAT(wrong, testing::IsEmpty());
}

}  // namespace
}  // namespace morvane::house
