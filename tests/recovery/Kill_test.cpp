// Programs that edit and save are killed at random moments. MORVANE_KILLS sets how often, MORVANE_KILL_SPEED
// how much faster than the clock their time runs: 200 at the speed 1 take ten minutes.
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <iostream>
#include <random>
#include <sstream>

#include "platform/posix/PosixClock.h"
#include "platform/posix/PosixFileSystem.h"
#include "support/FakePrompts.h"
#include "support/TempFolder.h"
#include "textjob/job/RecoveryCopy.h"
#include "textjob/job/modTjb.h"

namespace morvane::test {
namespace {

constexpr const char* kVictimJob = "JOB.TJB";
constexpr long long kMostLost = 5000;  // milliseconds of editing
constexpr double kLongestLife = 6;     // seconds

int Setting(const char* name, int fallback) {
  const char* value = std::getenv(name);
  return value == nullptr ? fallback : std::atoi(value);
}

struct Step {
  std::string what, comment;
  std::size_t hash = 0;
  long long time = 0;
};

std::vector<Step> ReadLog(const std::string& text) {
  std::istringstream log(text);
  std::vector<Step> steps;
  for (Step step; log >> step.what >> step.comment >> step.hash >> step.time;) steps.push_back(step);
  return steps;
}

// Kills the program some time after its start, or after its first line of the log.
void LiveAndDie(std::vector<std::string> words, double seconds, bool fromLog) {
  const pid_t process = fork();
  if (process == 0) {
    // A killed program leaves its temporary folders; they go with the log's.
    setenv("TMPDIR", std::filesystem::path(words[2]).parent_path().c_str(), 1);
    std::vector<char*> arguments;
    for (std::string& word : words) arguments.push_back(word.data());
    arguments.push_back(nullptr);
    execv(arguments[0], arguments.data());
    _exit(127);
  }
  const auto isSilent = [&] { return std::ifstream(words[2]).peek() == EOF; };
  int status = 0;
  while (fromLog && isSilent() && waitpid(process, &status, WNOHANG) == 0) usleep(1000);
  usleep(static_cast<useconds_t>(seconds * 1e6));
  kill(process, SIGKILL);
  ASSERT_TRUE(waitpid(process, &status, 0) == process && WIFSIGNALED(status)) << "it ended by itself";
}

class Kill : public testing::Test {
 protected:
  static std::size_t Hash(const std::string& bytes) { return std::hash<std::string>()(bytes); }

  // What the next start holds: the restored changes, or the saved job.
  std::string NextStart() {
    prompts_.answers = {platform::Answer::Yes};
    const auto copy = textjob::RecoveryCopy(files_, clock_, prompts_).Offer();
    if (copy) return textjob::WriteTjb(copy->job);
    return files_.FileExists(kVictimJob) ? files_.Read(kVictimJob) : "COMMENT,\r\n";
  }
  // Each saved file is one that was meant to be saved.
  void CheckFile(const std::vector<Step>& steps, const std::string& before) {
    const std::string bytes = folder_.Read(kVictimJob);
    bool meant = bytes == before;
    for (const Step& step : steps) meant = meant || (step.what == "save" && step.hash == Hash(bytes));
    ASSERT_TRUE(meant) << "damaged:\n" << bytes;
  }
  void CheckLoss(const std::vector<Step>& steps, const std::string& state) {
    if (steps.empty()) return;
    const Step& last = steps.back();
    const auto is = [&](const Step& step) {
      return (step.what == "now" || step.what == "start") && step.hash == Hash(state);
    };
    const auto found = std::find_if(steps.rbegin(), steps.rend(), is).base();
    // An action that was under way may have been kept already.
    if (last.what == "undo" || (last.what == "change" && found == steps.begin())) return;
    ASSERT_NE(found, steps.begin()) << "no state that ever was:\n" << state;
    const auto isNow = [](const Step& step) { return step.what == "now"; };
    const auto lost = std::find_if(found, steps.end(), isNow);
    if (lost == steps.end()) return;
    worst_ = std::max(worst_, last.time - lost->time);
    ASSERT_LE(last.time - lost->time, kMostLost);
    const auto saves = [](const Step& step) { return step.what == "save"; };
    ASSERT_EQ(std::find_if(found, std::prev(steps.end()), saves), std::prev(steps.end()))
        << "older than the saved job";
  }

  TempFolder folder_;
  TempFolder aside_;
  platform::PosixFileSystem disk_;
  platform::PosixClock clock_;
  FakePrompts prompts_;
  common::Files files_{disk_, folder_.Path()};
  long long worst_ = 0;
};

TEST_F(Kill, LeavesWholeFilesAndFewSecondsAreLost) {
  const int speed = Setting("MORVANE_KILL_SPEED", 10);
  std::mt19937 random{std::random_device()()};
  std::size_t states = 0, restored = 0;
  std::string state = NextStart();
  for (int round = 1; round <= Setting("MORVANE_KILLS", 12); ++round) {
    SCOPED_TRACE(round);
    const std::string before = folder_.Read(kVictimJob);
    aside_.Write("log", "");
    const double life = std::uniform_real_distribution<>(0, kLongestLife / speed)(random);
    ASSERT_NO_FATAL_FAILURE(LiveAndDie({MORVANE_BIN_DIR "/form_victim", folder_.Path(), aside_ / "log",
                                        std::to_string(round), std::to_string(speed)},
                                       life, round % 4 != 0));
    const std::vector<Step> steps = ReadLog(aside_.Read("log"));
    ASSERT_NO_FATAL_FAILURE(CheckFile(steps, before));
    const std::string left = NextStart();
    ASSERT_EQ(steps.empty() ? Hash(left) : steps[0].hash, Hash(state)) << "the start held something else";
    ASSERT_NO_FATAL_FAILURE(CheckLoss(steps, left));
    states += steps.size();
    restored += left != folder_.Read(kVictimJob) ? 1 : 0;
    state = left;
  }
  std::cout << states << " steps, " << restored << " restored, at most " << worst_ << " ms lost\n";
  EXPECT_GT(states, 0U);
}

}  // namespace
}  // namespace morvane::test
