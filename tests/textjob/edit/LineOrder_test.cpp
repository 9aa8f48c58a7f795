#include "textjob/edit/LineOrder.h"

#include <gtest/gtest.h>

namespace morvane::test {
namespace {

using textjob::LineEntry;
using textjob::TextJob;

TEST(LineOrder, EntriesNameTheLineAndItsPlace) {
  const std::pair<const char*, const char*> entries[] = {
      {"0,1.5,-2,1,F.fnt,0,0,0,0,Hello@@,1", "Hello  (1.5,-2)"},
      {"4,.25,1000000", "MOVE  (0.25,1000000)"},
      {"12,0,0", "START  (0,0)"},
      {"2,3,4,1,,0,0,0,0,part.job@@,1", "PART.JOB  (3,4)"},
      {"", "  (0,0)"},
      {"99,x", "  (0,0)"}};
  for (const auto& [line, entry] : entries) EXPECT_EQ(LineEntry(line), entry) << line;
}

TEST(LineOrder, LinesSwapWithTheirNeighbours) {
  constexpr std::size_t kNone = std::size_t(-1);
  const std::tuple<bool, std::size_t, const char*> moves[] = {
      {true, 1, "bac"}, {false, 1, "acb"}, {true, 0, "abc"},     {false, 2, "abc"},
      {true, 3, "abc"}, {false, 3, "abc"}, {true, kNone, "abc"}, {false, kNone, "abc"}};
  for (const auto& [up, index, order] : moves) {
    TextJob job;
    job.Lines = {"a", "b", "c"};
    const bool moved = std::string(order) != "abc";
    EXPECT_EQ(up ? MoveLineUp(job, index) : MoveLineDown(job, index), moved);
    EXPECT_EQ(job.Lines[0] + job.Lines[1] + job.Lines[2], order);
    EXPECT_EQ(job.Dirty, moved);
  }
}

}  // namespace
}  // namespace morvane::test
