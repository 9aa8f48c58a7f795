// What an editor does until it is killed: it changes and saves its job, and tells each step in a log.
#pragma once

#include <cmath>
#include <fstream>
#include <random>
#include <string>

#include "support/FakePrompts.h"
#include "textjob/modTjb.h"

namespace morvane::test {

inline constexpr const char* kVictimJob = "JOB.TJB";

// The editor that is driven. After a start it holds what was restored, else the saved job, if there is one.
class Victim {
 public:
  virtual ~Victim() = default;
  virtual const textjob::TextJob& Job() const = 0;
  // One edit by the user, which makes that text the comment and changes lines as well.
  virtual void Change(const std::string& comment, std::size_t random) = 0;
  virtual void Undo() = 0;
  // Under the name kVictimJob.
  virtual void Save() = 0;
  // Monotonic, as its clock runs.
  virtual double Seconds() const = 0;
  // Lets its timers run.
  virtual void Wait(int milliseconds) = 0;
};

// Each line of the log: what, a comment, a hash of the whole job, the time in milliseconds. "start" and "now"
// tell what the job is; "save", "undo" and "change", which names the comment to come, what is about to
// happen. A line reaches the system at once, so a killed process leaves all of them.
inline void EditUntilKilled(Victim& victim, const std::string& logPath, unsigned seed) {
  std::mt19937 random(seed);
  std::ofstream log(logPath);
  const auto tell = [&](const char* what, const std::string& comment) {
    const std::size_t hash = std::hash<std::string>()(textjob::WriteTjb(victim.Job()));
    log << what << ' ' << comment << ' ' << hash << ' ' << std::llround(victim.Seconds() * 1000) << std::endl;
  };
  tell("start", "-");
  // Often, to be killed in a save; or hardly ever, so that much hangs on the copy.
  const std::size_t actions = seed % 2 == 0 ? 20 : 1000;
  for (unsigned number = 1;; ++number) {
    const std::string comment = std::to_string(seed) + '.' + std::to_string(number);
    const std::size_t action = random() % actions;
    tell(action == 0 ? "save" : action < 4 ? "undo" : "change", comment);
    if (action == 0) {
      victim.Save();
    } else if (action < 4) {
      victim.Undo();
    } else {
      victim.Change(comment, random());
    }
    tell("now", comment);
    victim.Wait(static_cast<int>(random() % 50));
  }
}

}  // namespace morvane::test
