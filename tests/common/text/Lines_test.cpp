#include "common/text/Lines.h"

#include <gtest/gtest.h>

#include <vector>

#include "common/RunTimeError.h"

namespace morvane::common {
namespace {

TEST(Lines, EndAtEveryKindOfMark) {
  using Texts = std::vector<std::string>;
  using Case = std::pair<std::string, Texts>;
  for (const auto& [bytes, expected] :
       {Case{"", {}}, Case{"A", {"A"}}, Case{"A\r\nB\nC\rD\r\n", {"A", "B", "C", "D"}},
        Case{"\r\n\r\nA", {"", "", "A"}}, Case{"A\r\r\nB", {"A", "", "B"}}, Case{"A\n\rB\r", {"A", "", "B"}},
        Case{{"A\0B\n", 4}, {{"A\0B", 3}}}}) {
    Lines lines(bytes);
    Texts found;
    for (std::string_view line; lines.Next(line);) found.emplace_back(line);
    EXPECT_EQ(found, expected) << bytes;
    EXPECT_THROW(lines.Take(), RunTimeError);
  }
}

}  // namespace
}  // namespace morvane::common
