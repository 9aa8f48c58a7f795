#include "textjob/job/RecoveryCopy.h"

#include <gmock/gmock.h>

#include "common/text/Text.h"
#include "support/BaseStation.h"
#include "textjob/job/JobDocument.h"
#include "textjob/job/modTjb.h"

namespace morvane::test {
namespace {

using platform::Answer;
using testing::ElementsAre;
using textjob::RecoveryCopy;

const std::string kCopy = "/base/.morvane-recovery";
const std::string kQuestion = "The program ended with unsaved changes of JOB. Do you want to restore them?";

class RecoveryCopyTest : public testing::Test, public test::BaseStation {
 protected:
  RecoveryCopyTest() { disk.Put("/base/A.TJB", "COMMENT,\r\n4,0,0\r\n"); }

  void Change(int number) {
    job_.Comment = std::to_string(number);
    job_.Dirty = true;
  }
  // The copy of a program that died with these changes.
  void Leave(const std::string& name) {
    RecoveryCopy(files, clock, prompts).BeforeSave(job_, name);
    prompts.boxes.clear();
  }
  void Wait(double seconds) { clock.seconds += seconds; }

  textjob::TextJob job_{"any\r\ntext", {"4,1,1", "COMMENT,no line\n", "", "3,0,0\xE4"}, true, "1"};
  RecoveryCopy recovery_{files, clock, prompts};
  textjob::JobDocument document_{job_, files, prompts, dialogs, &recovery_};
};

// A change each tenth of a second, then none: what a crash at any time would lose.
TEST_F(RecoveryCopyTest, IsNeverFarBehindAndRestsWhenNothingChanges) {
  int writes = 0;
  std::int64_t modified = 0;
  std::string last;
  std::vector<double> changed;  // when
  for (int tick = 0; tick < 300; ++tick) {
    if (tick < 200) Change(tick), changed.push_back(clock.seconds);
    if (tick < 200 || recovery_.DueIn() == 0.0) recovery_.Touch(job_, "A.TJB");
    const std::int64_t time = disk.Status(kCopy).modifiedNanoseconds;
    if (time != modified) ++writes, modified = time, last = disk.Get(kCopy);
    textjob::RecoveredJob copy;
    const bool any = textjob::ReadRecovery(last, copy);
    const std::size_t kept = any ? std::stoul(copy.job.Comment) + 1 : 0;
    const bool behind = kept < changed.size();
    ASSERT_TRUE(!behind || clock.seconds - changed[kept] < (any ? 2.15 : 0.35)) << tick;
    ASSERT_EQ(recovery_.DueIn().has_value(), behind) << tick;
    Wait(0.1);
  }
  EXPECT_LE(writes, 12);
  EXPECT_NE(last.find("2024-03-05 14:07:09"), std::string::npos);
  job_.Dirty = false;
  recovery_.Touch(job_, "A.TJB");
  EXPECT_FALSE(disk.Has(kCopy)) << "undone to the saved job";
}

TEST_F(RecoveryCopyTest, IsOfferedAtTheNextStart) {
  struct Case {
    const char *name, *shown, *restored;
    Answer answer;
  };
  for (const Case& c :
       {Case{"A.TJB", "A.TJB", "A.TJB", Answer::Yes}, Case{"<NEW>", "<NEW>", "<NEW>", Answer::Yes},
        Case{"SUB\\GONE.TJB", "GONE.TJB", "SUB\\GONE.TJB", Answer::Yes},
        Case{"/home/x/B.TJB", "B.TJB", "<NEW>", Answer::Yes},
        Case{"..\\..\\etc\\B.TJB", "B.TJB", "<NEW>", Answer::Yes}, Case{"A.TJB", "A.TJB", "", Answer::No}}) {
    const textjob::TextJob lost = job_;
    Leave(c.name);
    prompts.answers = {c.answer};
    const auto copy = recovery_.Offer();
    EXPECT_THAT(prompts.Texts(),
                ElementsAre(common::ReplaceAll(kQuestion, "JOB.", std::string(c.shown) + ".")));
    ASSERT_EQ(copy.has_value(), c.answer == Answer::Yes);
    EXPECT_EQ(disk.Has(kCopy), copy.has_value()) << "kept until the changes are saved";
    if (!copy) continue;
    job_ = {};
    document_.Restore(*copy);
    EXPECT_EQ(document_.Name(), c.restored);
    EXPECT_EQ(job_.Lines, lost.Lines);
    EXPECT_EQ(job_.Comment, lost.Comment);
    EXPECT_TRUE(job_.Dirty && job_.Selection.empty());
  }
  EXPECT_FALSE(recovery_.Offer()) << "nothing was left";
}

// The program may die before it has an answer.
TEST_F(RecoveryCopyTest, StaysWhileTheQuestionStands) {
  struct : FakePrompts {
    Answer MsgBox(const std::string&, platform::Buttons, const std::string&) override {
      offered->Touch({}, "<NEW>");
      kept = disk->Has(kCopy);
      return Answer::No;
    }
    FakeFileSystem* disk = nullptr;
    RecoveryCopy* offered = nullptr;
    bool kept = false;
  } question;
  RecoveryCopy offered(files, clock, question);
  question.disk = &disk;
  question.offered = &offered;
  Leave("A.TJB");
  EXPECT_FALSE(offered.Offer());
  EXPECT_TRUE(question.kept && !disk.Has(kCopy));
}

TEST_F(RecoveryCopyTest, GoesWithTheChanges) {
  document_.Open("A.TJB");
  for (const char* how : {"kept", "saved", "dropped", "replaced"}) {
    Change(1);
    const std::string_view way = how;
    disk.SetWritable("/base/A.TJB", way == "saved");
    if (way != "replaced") prompts.answers = {way == "dropped" ? Answer::No : Answer::Yes};
    EXPECT_EQ(way == "replaced" ? document_.Open("A.TJB") : document_.LeaveJob(false), way != "kept");
    EXPECT_EQ(disk.Has(kCopy), way == "kept") << how << ": it is written ahead of the save, which failed";
  }
  // The program died right behind the save.
  Change(2);
  Leave("A.TJB");
  disk.Put("/base/A.TJB", textjob::WriteTjb(job_));
  EXPECT_FALSE(recovery_.Offer());
  EXPECT_TRUE(prompts.boxes.empty() && !disk.Has(kCopy));
}

TEST_F(RecoveryCopyTest, ADamagedCopyIsPutAside) {
  Leave("A.TJB");
  const std::string whole = disk.Get(kCopy);
  for (std::size_t at = 0; at < whole.size(); ++at) {
    std::string flipped = whole;
    flipped[at] = static_cast<char>(flipped[at] ^ 1);
    for (const std::string& bytes : {whole.substr(0, at), flipped}) {
      disk.Put(kCopy, bytes);
      ASSERT_FALSE(recovery_.Offer()) << at;
      ASSERT_EQ(disk.Get(kCopy + "-damaged"), bytes);
    }
  }
  EXPECT_TRUE(prompts.boxes.empty() && !disk.Has(kCopy));
}

TEST_F(RecoveryCopyTest, AFullDiskIsToldOnceAndTriedAgain) {
  const std::string told =
      "The unsaved changes of A.TJB cannot be kept for a restart: Disk full. Save the job.";
  int number = 0;
  for (const bool full : {true, false, true}) {
    disk.faults.bytesLeft = full ? std::optional<std::size_t>(20) : std::nullopt;
    for (int second = 0; second < 10; ++second, Wait(1)) {
      Change(++number);
      recovery_.Touch(job_, "A.TJB");
    }
  }
  EXPECT_THAT(prompts.Texts(), ElementsAre(told, told));
  disk.faults = {};
  job_.Comment = "last";
  Wait(2);
  recovery_.Touch(job_, "A.TJB");
  EXPECT_NE(disk.Get(kCopy).find("4,last\r\n"), std::string::npos) << "although nothing changes any more";
}

}  // namespace
}  // namespace morvane::test
