#include "textjob/LineOrder.h"

#include <gtest/gtest.h>

namespace morvane::test {
namespace {

using textjob::LineEntry;
using textjob::TextJob;
using Lines = std::vector<std::string>;

TEST(LineOrder, EntriesNameTheLineAndItsPlace) {
  const std::pair<const char*, const char*> entries[] = {
      {"0,1.5,-2,1,F.fnt,0,0,0,0,Hello@@,1", "Hello  (1.5,-2)"},
      {"4,.25,1000000", "MOVE  (0.25,1000000)"},
      {"12,0,0", "START  (0,0)"},
      {"2,3,4,1,,0,0,0,0,part.job@@,1", "PART.JOB  (3,4)"},
      {"", "  (0,0)"},
      {"99,x", "  (0,0)"}};
  for (const auto& [line, entry] : entries) EXPECT_EQ(LineEntry(line), entry) << line;
  TextJob job;
  job.Lines = {"4,1,1", "12,2,2"};
  EXPECT_EQ(textjob::LineEntries(job), (Lines{"MOVE  (1,1)", "START  (2,2)"}));
}

TEST(LineOrder, LinesSwapWithTheirNeighbours) {
  const struct {
    bool (*move)(TextJob&, std::size_t);
    std::size_t index;
    Lines lines;
  } moves[] = {
      {textjob::MoveLineUp, 1, {"b", "a", "c"}},   {textjob::MoveLineDown, 1, {"a", "c", "b"}},
      {textjob::MoveLineUp, 0, {"a", "b", "c"}},   {textjob::MoveLineDown, 2, {"a", "b", "c"}},
      {textjob::MoveLineUp, 3, {"a", "b", "c"}},   {textjob::MoveLineDown, 3, {"a", "b", "c"}},
      {textjob::MoveLineUp, ~0U, {"a", "b", "c"}}, {textjob::MoveLineDown, std::size_t(-1), {"a", "b", "c"}}};
  const Lines before{"a", "b", "c"};
  for (const auto& move : moves) {
    TextJob job;
    job.Lines = before;
    EXPECT_EQ(move.move(job, move.index), move.lines != before);
    EXPECT_EQ(job.Lines, move.lines);
    EXPECT_EQ(job.Dirty, move.lines != before);
  }
  TextJob none;
  EXPECT_FALSE(textjob::MoveLineDown(none, 0));
}

}  // namespace
}  // namespace morvane::test
