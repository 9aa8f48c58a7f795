#include "recipes/modFixture.h"

#include <gtest/gtest.h>

#include "support/Failure.h"

namespace morvane::recipes {
namespace {

// Lines 1 to 13.
const std::string kHead =
    "4\r\n2.25\r\n3\r\n0.75\r\n5\r\n-1.5\r\n6\r\n0.125\r\n10\r\n20\r\n1,1;2,2\r\nG0 X1, @Y2\r\nEND\r\n";

std::string WithTail(const std::string& lengthLine, const std::string& templateLine) {
  return kHead + lengthLine + "\r\n" + templateLine + "\r\n";
}

TEST(modFixture, ReadsEveryFieldAndWritesTheSameBytes) {
  const std::string bytes = WithTail("12.5,True", "7,1@G0 X1@G0 X2") + "1,2\r\n0.5,-3\r\n";
  const Fixture f = ParseFixture(bytes);
  EXPECT_EQ((std::vector<int>{f.Type, f.Rows, f.Columns, f.Sides, f.Reserved, f.RotaryX, f.Template}),
            (std::vector<int>{kFixtureRotaryClone, 3, 5, 6, 7, true, true}));
  EXPECT_EQ((std::vector<float>{f.Diameter, f.RowDistance, f.ColumnDistance, f.Flat, f.OffsetX, f.OffsetY,
                                f.Length}),
            (std::vector<float>{2.25F, 0.75F, -1.5F, 0.125F, 10, 20, 12.5F}));
  EXPECT_EQ((std::vector<std::string>{f.Skip, f.StartCommand, f.EndCommand, f.StartPosition, f.EndPosition}),
            (std::vector<std::string>{"1,1;2,2", "G0 X1, @Y2", "END", "G0 X1", "G0 X2"}));
  EXPECT_EQ(f.Path, (std::vector<std::string>{"1,2", "0.5,-3"}));
  EXPECT_EQ(FormatFixture(f), bytes);
}

TEST(modFixture, ReadsTheLinesWithSeveralValues) {
  using Case = std::tuple<const char*, const char*, float, bool, bool, const char*, const char*>;
  for (const auto& [lengthLine, templateLine, length, rotaryX, isTemplate, start, end] :
       {Case{"12.5,False", "0,0@@", 12.5F, false, false, "", ""},
        Case{"junk,true", "0,@A@B@C", 0.F, true, false, "A", "B@C"},
        Case{",-1", "0", 0.F, true, false, "", ""},
        Case{"1e99,0", ",1", 3.402823466e38F, false, true, "", ""}}) {
    SCOPED_TRACE(lengthLine);
    const Fixture fixture = ParseFixture(WithTail(lengthLine, templateLine));
    EXPECT_EQ(fixture.Length, length);
    EXPECT_EQ(fixture.RotaryX, rotaryX);
    EXPECT_EQ(fixture.Template, isTemplate);
    EXPECT_EQ(fixture.StartPosition + ';' + fixture.EndPosition, std::string(start) + ';' + end);
  }
}

TEST(modFixture, FailsAsAWhole) {
  for (const std::string& bytes : {std::string(), kHead.substr(0, 9), kHead, kHead + "12.5,True\r\n"}) {
    EXPECT_EQ(test::Failure([&] { ParseFixture(bytes); }), "Input past end of file") << bytes;
  }
  using Case = std::pair<const char*, const char*>;
  for (const auto& [lengthLine, templateLine] : {Case{"12.5", "0,0@@"}, Case{"12.5,yes", "0,0@@"},
                                                 Case{"12.5,True,", "0,0@@"}, Case{"1,True", "0,x@@"}}) {
    const std::string bytes = WithTail(lengthLine, templateLine);
    EXPECT_EQ(test::Failure([&] { ParseFixture(bytes); }), "Type mismatch") << bytes;
  }
}

TEST(modFixture, PathEndsWhenFullAndAtAnEmptyLine) {
  const std::string head = WithTail("0,False", "0,0@@");
  std::string points;
  for (std::size_t i = 0; i < kFixturePathPoints + 5; ++i) points += "1,1\r\n";
  EXPECT_EQ(ParseFixture(head + points).Path.size(), kFixturePathPoints);
  EXPECT_EQ(ParseFixture(head + "1,1\r\n\r\n2,2\r\n").Path, (std::vector<std::string>{"1,1"}));

  Fixture fixture = ParseFixture(head);
  fixture.Skip = "1,1\r\n2,2";  // stays on its line
  fixture.Path = {"1,1", "", "2,2"};
  EXPECT_EQ(ParseFixture(FormatFixture(fixture)).Skip, "1,12,2");
  EXPECT_EQ(ParseFixture(FormatFixture(fixture)).Path, (std::vector<std::string>{"1,1"}));
}

}  // namespace
}  // namespace morvane::recipes
