// The editor's job without its window: core_victim FOLDER LOG SEED SPEED. Time runs SPEED times as fast.
#include <cstdlib>

#include "common/FileDialogs.h"
#include "platform/posix/PosixClock.h"
#include "platform/posix/PosixFileSystem.h"
#include "recovery/EditUntilKilled.h"
#include "textjob/JobDocument.h"
#include "textjob/JobHistory.h"

namespace morvane::test {
namespace {

class FastClock : public platform::PosixClock {
 public:
  explicit FastClock(int speed) : speed_(speed) {}
  double MonotonicSeconds() const override { return PosixClock::MonotonicSeconds() * speed_; }
  void Sleep(int milliseconds) override { PosixClock::Sleep(milliseconds / speed_); }

 private:
  int speed_;
};

class CoreVictim : public Victim {
 public:
  CoreVictim(const std::string& folder, platform::Clock& clock) : clock_(clock), files_(disk_, folder) {
    prompts_.answers = {platform::Answer::Yes};
    if (auto copy = recovery_.Offer()) {
      document_.Restore(*copy);
    } else if (files_.FileExists(kVictimJob)) {
      document_.Open(kVictimJob);
    }
    history_.Reset(job_);
  }
  const textjob::TextJob& Job() const override { return job_; }
  void Change(const std::string& comment, std::size_t random) override {
    job_.Comment = comment;
    job_.Dirty = true;
    const std::size_t line = random % (job_.LineCount() + 1);
    if (line == job_.LineCount() && line < 200) job_.Lines.emplace_back("4,0,0");
    if (line < job_.LineCount()) job_.Lines[line] = "0," + comment + ",0,0.125,FONT1.fnt,0,0,0,0,New@@,1";
    Note();
  }
  void Undo() override {
    history_.Undo(job_);
    Note();
  }
  void Save() override {
    document_.Save(kVictimJob);
    history_.MarkSaved(job_);
  }
  double Seconds() const override { return clock_.MonotonicSeconds(); }
  void Wait(int milliseconds) override {
    clock_.Sleep(milliseconds);
    if (recovery_.DueIn() == 0.0) recovery_.Touch(job_, document_.Name());
  }

 private:
  void Note() {
    history_.Note(job_);
    recovery_.Touch(job_, document_.Name());
  }

  platform::Clock& clock_;
  platform::PosixFileSystem disk_;
  common::Files files_;
  FakePrompts prompts_;
  common::DialogFolders folders_;
  common::FileDialogs dialogs_{prompts_, files_, folders_};
  textjob::TextJob job_;
  textjob::RecoveryCopy recovery_{files_, clock_, prompts_};
  textjob::JobDocument document_{job_, files_, prompts_, dialogs_, &recovery_};
  textjob::JobHistory history_;
};

}  // namespace
}  // namespace morvane::test

int main(int, char** arguments) {
  morvane::test::FastClock clock(std::atoi(arguments[4]));
  morvane::test::CoreVictim victim(arguments[1], clock);
  morvane::test::EditUntilKilled(victim, arguments[2], static_cast<unsigned>(std::atoi(arguments[3])));
}
