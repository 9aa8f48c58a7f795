#include <gtest/gtest.h>

#include "common/RunTimeError.h"
#include "fonts/modFont.h"
#include "support/Mutator.h"

namespace morvane::fonts {
namespace {

// Every character can be asked for, in all four ways, and by the viewer's scanner.
void Read(const std::string& bytes) {
  FontTable table;
  ReadFont(bytes, table);
  std::vector<FontSegment> segments;
  for (int code = 0; code < kFontCodes; ++code) {
    const std::string& line = table.FontChars[static_cast<std::size_t>(code)];
    if (line.empty()) continue;
    ReadFontLine(line, code, segments);
    ASSERT_LE(segments.size(), std::size_t{kMaxSegments});
    for (const bool forward : {true, false}) {
      for (const float width : {0.0F, 1.0F}) {
        try {
          loadFontChar(table, code, segments, forward, width);
          ASSERT_LE(segments.size(), std::size_t{kMaxSegments});
        } catch (const common::RunTimeError& error) {
          ASSERT_EQ(error.number(), common::kTypeMismatch);
        }
      }
    }
  }
}

TEST(FontMutation, AnyBytes) {
  test::RunMutations({"1:0.5,0,0.5,1\r\n2:\r\n3:0.000,-0.250,1.000,1.500;1,1.5,.5,1e1;\r\n4:-1,-1,-1,-1\r\n"},
                     Read);
}

TEST(FontMutation, HugeLines) {
  test::RunHugeLine("", "9", Read);
  test::RunHugeLine("1:", "0,0,1,1;", Read);
  test::RunHugeLine("", "1:\r\n", Read);
}

}  // namespace
}  // namespace morvane::fonts
