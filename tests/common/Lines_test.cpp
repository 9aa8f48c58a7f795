#include "common/Lines.h"

#include <gtest/gtest.h>

#include <vector>

#include "common/RunTimeError.h"

namespace morvane::common {
namespace {

TEST(Lines, EndAtEveryKindOfMark) {
  struct Case {
    std::string bytes;
    std::vector<std::string> lines;
  };
  const Case cases[] = {{"", {}},
                        {"A", {"A"}},
                        {"A\r\n", {"A"}},
                        {"A\r\nB\nC\rD", {"A", "B", "C", "D"}},
                        {"\r\n\r\nA", {"", "", "A"}},
                        {"A\r\r\nB", {"A", "", "B"}},
                        {"A\n\rB\r", {"A", "", "B"}},
                        {std::string("A\0B\n", 4), {std::string("A\0B", 3)}}};
  for (const Case& c : cases) {
    Lines lines(c.bytes);
    std::vector<std::string> found;
    for (std::string_view line; lines.Next(line);) found.emplace_back(line);
    EXPECT_EQ(found, c.lines) << c.bytes;
    EXPECT_TRUE(lines.AtEnd());
  }
}

TEST(Lines, TakeBeyondTheEndIsAnError) {
  Lines lines("A");
  EXPECT_EQ(lines.Take(), "A");
  try {
    lines.Take();
    FAIL();
  } catch (const RunTimeError& error) {
    EXPECT_EQ(error.number(), kInputPastEndOfFile);
    EXPECT_EQ(error.description(), "Input past end of file");
  }
}

}  // namespace
}  // namespace morvane::common
