#include <gmock/gmock.h>

#include <algorithm>
#include <cctype>

#include "house/Tree.h"

namespace morvane::house {
namespace {

constexpr std::size_t kMedianLines = 120;
constexpr std::size_t kLongLines = 400;
constexpr std::size_t kMostLines = 600;
constexpr std::size_t kMostFunctionLines = 80;

// Sources that hold a table and may be as long as it is.
constexpr std::string_view kTables[] = {"src/app/MenuTable.cpp"};

bool IsTable(const TreeFile& file) {
  return std::find(std::begin(kTables), std::end(kTables), file.path) != std::end(kTables);
}

TEST(Lengths, OfSources) {
  std::vector<std::size_t> lengths;
  std::vector<std::string> tooLong;
  for (const TreeFile& file : ReadProduct()) {
    if (!file.Is(".cpp") || IsTable(file)) continue;
    lengths.push_back(file.lines.size());
    if (file.lines.size() > kMostLines) tooLong.push_back(file.path);
  }
  ASSERT_GT(lengths.size(), 100U);
  std::sort(lengths.begin(), lengths.end());
  EXPECT_LT(lengths[lengths.size() / 2], kMedianLines);
  EXPECT_LT(lengths[lengths.size() * 95 / 100], kLongLines);
  EXPECT_THAT(tooLong, testing::IsEmpty());
}

// The layout is fixed: a function's head begins in the first column, and so does its closing brace.
TEST(Lengths, OfFunctions) {
  std::vector<std::string> tooLong;
  std::size_t functions = 0;
  for (const TreeFile& file : ReadProduct()) {
    std::size_t head = 0;  // 1 for the first line; 0 outside of a function
    for (std::size_t i = 0; i < file.lines.size(); ++i) {
      const std::string& line = file.lines[i];
      const bool inFirstColumn = !line.empty() && (std::isalpha(static_cast<unsigned char>(line[0])) != 0);
      if (inFirstColumn) head = line.find('(') == std::string::npos || line.ends_with(';') ? 0 : i + 1;
      if (line != "}" || head == 0) continue;
      ++functions;
      if (i + 1 - head > kMostFunctionLines) tooLong.push_back(file.path + ": " + file.lines[head - 1]);
      head = 0;
    }
  }
  EXPECT_GT(functions, 200U);
  EXPECT_THAT(tooLong, testing::IsEmpty());
}

TEST(Headers, TellWhyTheyExistAndAreReadOnce) {
  std::vector<std::string> wrong;
  std::size_t headers = 0;
  for (const TreeFile& file : ReadTree()) {
    if (!file.Is(".h")) continue;
    ++headers;
    const bool comment = !file.lines.empty() && file.lines.front().starts_with("// ");
    const bool once = std::find(file.lines.begin(), file.lines.end(), "#pragma once") != file.lines.end();
    if (!comment || !once) wrong.push_back(file.path);
  }
  EXPECT_GT(headers, 50U);
  EXPECT_THAT(wrong, testing::IsEmpty());
}

}  // namespace
}  // namespace morvane::house
