#include "textjob/job/JobHistory.h"

#include <gtest/gtest.h>

#include <random>

namespace morvane::test {
namespace {

using textjob::BesideChange;
using textjob::JobHistory;
using textjob::TextJob;

class JobHistoryTest : public ::testing::Test {
 protected:
  JobHistoryTest() { history_.Reset(job_); }

  std::size_t Below(std::size_t count) { return random_() % std::max<std::size_t>(count, 1); }

  // One random change of a kind that the editor makes; it may happen to change nothing.
  void Change() {
    std::vector<std::string>& lines = job_.Lines;
    const std::string number = std::to_string(Below(50));
    const auto at = lines.begin() + static_cast<std::ptrdiff_t>(Below(lines.size()));
    const std::size_t kind = lines.empty() ? 0 : Below(6);
    if (kind == 0) lines.insert(at, "0," + number + ",TEXT");
    if (kind == 1) lines.erase(at);
    if (kind == 2) std::swap(*at, lines[Below(lines.size())]);
    if (kind == 3) at->replace(0, Below(4), number);
    if (kind == 4) job_.Comment = "comment " + number;
    for (std::size_t i = 0; kind == 5 && i < lines.size(); i += 1 + Below(2)) lines[i].insert(1, number);
    job_.Dirty = true;
  }
  void Edit(const std::string& line, std::string_view visit = {}, const BesideChange& beside = {}) {
    job_.Lines[0] = line;
    history_.Note(job_, visit, beside);
  }
  bool Same(const TextJob& other) const { return job_.Lines == other.Lines && job_.Comment == other.Comment; }

  std::mt19937 random_{4};
  TextJob job_{"loaded", {"0,1,2,A", "4,1,1", "16,0,0,B"}, false, "0"};
  JobHistory history_;
};

// Against plain copies of every state.
TEST_F(JobHistoryTest, RandomChangesAreUndoneAndRedone) {
  constexpr std::size_t kNowhere = 1U << 30;
  std::vector<TextJob> states = {job_};
  std::size_t at = 0;
  std::size_t saved = 0;
  std::string visit;
  for (int round = 0; round < 10000; ++round) {
    const std::size_t action = Below(16);
    if (action < 8) {
      const std::string next = Below(2) == 0 ? "" : Below(2) == 0 ? "3/Text" : "4/X pos";
      Change();
      history_.Note(job_, next);
      if (!next.empty() && next == visit) states.resize(at--);  // joins the last step
      visit.clear();
      if (!Same(states[at])) {
        if (saved != kNowhere && saved > at) saved = kNowhere;
        states.resize(++at);
        states.push_back(job_);
        visit = next;
      }
    } else if (action < 15) {
      const bool back = Below(2) == 0;
      const bool can = back ? at > 0 : at + 1 < states.size();
      ASSERT_EQ((back ? history_.Undo(job_) : history_.Redo(job_)).has_value(), can);
      at += can ? (back ? -1 : 1) : 0;
      visit.clear();
      ASSERT_TRUE(!can || job_.Dirty == (at != saved)) << round;
    } else {
      const bool save = Below(2) == 0;  // or another line is chosen
      save ? history_.MarkSaved(job_) : history_.Note(job_);
      saved = save ? at : saved;
      visit.clear();
    }
    ASSERT_TRUE(Same(states[at])) << round;
    ASSERT_EQ(history_.AtSaved(), at == saved) << round;
    ASSERT_EQ(history_.CanUndo(), at > 0) << round;
    ASSERT_EQ(history_.CanRedo(), at + 1 < states.size()) << round;
  }
  while (history_.Undo(job_)) --at;
  EXPECT_EQ(at, 0U);
  EXPECT_TRUE(Same(states[0]));
}

TEST_F(JobHistoryTest, SelectionsAndTheChangedMarkComeBack) {
  job_.Selection = "2";
  history_.Note(job_);
  EXPECT_FALSE(history_.CanUndo()) << "a selection is no change";
  job_.Selection = "3";
  job_.Dirty = true;
  Edit("4,5,5");
  job_.Selection = "0,1";
  ASSERT_TRUE(history_.Undo(job_));
  EXPECT_TRUE(job_.Selection == "2" && !job_.Dirty);
  ASSERT_TRUE(history_.Redo(job_));
  EXPECT_TRUE(job_.Selection == "3" && job_.Dirty);
  history_.Reset(job_);
  Edit("4,9,9");
  ASSERT_TRUE(history_.Undo(job_));
  EXPECT_TRUE(job_.Dirty) << "a restored job is not saved";
}

// What a step moved beside the job: the first value before, the last one after.
TEST_F(JobHistoryTest, SettingsAndLockRecordComeBack) {
  const auto setting = [](const char* key, const char* value) {
    return common::SettingChange{"Settings", key, value, *value == '\0'};
  };
  const textjob::LockRecord lock{"A.TJB", "A.BMP", 1, 2, 3, 4};
  textjob::LockRecord moved = lock;
  moved.X = 9;
  Edit("4,2,2", "offset", {{{setting("X", "")}, {}}, {{setting("X", "5")}, {}}});
  Edit("4,3,3", "offset",
       {{{setting("X", "5"), setting("Y", "1")}, lock}, {{setting("X", "6"), setting("Y", "2")}, moved}});
  const textjob::BesideValues before{{setting("X", ""), setting("Y", "1")}, lock};
  const textjob::BesideValues after{{setting("X", "6"), setting("Y", "2")}, moved};
  EXPECT_EQ(history_.Undo(job_), before);
  EXPECT_FALSE(history_.CanUndo());
  EXPECT_EQ(history_.Redo(job_), after);
}

TEST_F(JobHistoryTest, ManyStepsAreKeptInBoundedMemory) {
  for (int i = 0; i < 6000; ++i) Edit("4," + std::to_string(i));
  std::size_t steps = 0;
  while (history_.Undo(job_)) ++steps;
  EXPECT_EQ(steps, textjob::kMostSteps);
  EXPECT_EQ(job_.Lines[0], "4,999");
  EXPECT_TRUE(job_.Dirty) << "the saved job is out of reach";
  // Steps of 100 KB each: the memory ends before the number does, and the sure ones stay.
  history_.Reset(job_);
  for (int i = 0; i < 1200; ++i) Edit(std::string(50000, i % 2 == 0 ? 'a' : 'b'));
  for (steps = 0; history_.Undo(job_);) ++steps;
  EXPECT_EQ(steps, textjob::kSureSteps);
}

}  // namespace
}  // namespace morvane::test
