#include <gtest/gtest.h>

#include "recipes/modFixture.h"
#include "support/Mutator.h"

namespace morvane::recipes {
namespace {

// What was read is written in a form that reads and writes the same.
void Read(const std::string& bytes) {
  const Fixture fixture = ParseFixture(bytes);
  ASSERT_LE(fixture.Path.size(), kFixturePathPoints);
  const std::string written = FormatFixture(fixture);
  ASSERT_EQ(FormatFixture(ParseFixture(written)), written);
}

const std::string kSeed =
    "0\r\n1\r\n3\r\n0.75\r\n5\r\n-1.5\r\n6\r\n0.125\r\n10\r\n20\r\n1,1;2,2\r\nG0 X1\r\nEND\r\n"
    "12.5,True\r\n0,1@G0 X1@G0 X2\r\n1,2\r\n0.5,-3\r\n";

TEST(FixtureMutation, AnyBytes) {
  test::RunMutations({kSeed}, Read);
}

TEST(FixtureMutation, HugeLines) {
  const std::string twelveLines = "0\n1\n1\n1\n1\n1\n1\n1\n1\n1\n\n\n";
  test::RunHugeLine("", "9", Read);
  test::RunHugeLine(twelveLines, "G0 X1 ", Read);
  test::RunHugeLine(twelveLines + "END\n0,False\n0,0@@\n", "1,2\n", Read);
}

}  // namespace
}  // namespace morvane::recipes
