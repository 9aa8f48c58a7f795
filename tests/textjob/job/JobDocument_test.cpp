#include "textjob/job/JobDocument.h"

#include <gtest/gtest.h>

#include "support/BaseStation.h"
#include "textjob/edit/PositionText.h"
#include "textjob/job/Selection.h"

namespace morvane::test {
namespace {

using platform::Answer;

class JobDocumentTest : public testing::Test, public test::BaseStation {
 protected:
  JobDocumentTest() { disk.Put("/base/A.TJB", "COMMENT,first\r\n4,1,2\r\n"); }

  textjob::TextJob job_;
  textjob::JobDocument document_{job_, files, prompts, dialogs};
};

TEST_F(JobDocumentTest, ANewJobAsksForItsNameAndIsReadAnew) {
  job_.Lines = {"4,1,1", ""};
  job_.Dirty = true;
  prompts.files.push_back({"/base/NEWJOB.TJB"});
  EXPECT_TRUE(document_.Save());
  EXPECT_EQ(document_.Name(), "NEWJOB.TJB");
  const auto& asked = prompts.requests.at(0);
  EXPECT_EQ(asked.title + '+' + asked.filter + '+' + asked.fileName,
            "Save File As+TJB Files|*.TJB|All Files|*.*+");
  EXPECT_EQ(disk.Get("/base/NEWJOB.TJB"), "COMMENT,\r\n4,1,1\r\n\r\n");
  EXPECT_EQ(job_.LineCount(), 1U) << "blank lines vanish";
  EXPECT_FALSE(job_.Dirty);
}

TEST_F(JobDocumentTest, NamesThatTheControllerCannotHoldAreRefused) {
  document_.Open("A.TJB");
  prompts.files = {{"/base/MUCHTOOLONG.TJB"}, {""}};
  EXPECT_FALSE(document_.SaveAs());
  EXPECT_EQ(prompts.Texts(), std::vector<std::string>{"Name is longer than 8 characters"});
  EXPECT_FALSE(document_.SaveAs()) << "no name was given";
  EXPECT_EQ(prompts.requests.at(0).fileName, "A.TJB");
  EXPECT_EQ(document_.Name(), "A.TJB");
}

TEST_F(JobDocumentTest, LeavingAChangedJob) {
  struct Case {
    Answer answer;
    bool forget, writable, leaves, dirty;
  };
  for (const Case& c :
       {Case{Answer::No, true, true, true, false}, Case{Answer::No, false, true, true, true},
        Case{Answer::Yes, true, true, true, false}, Case{Answer::Yes, true, false, false, true}}) {
    disk.SetWritable("/base/A.TJB", true);
    document_.Open("A.TJB");
    EXPECT_TRUE(document_.LeaveJob(true)) << "nothing to ask";
    job_.Comment = "second";
    job_.Dirty = true;
    disk.SetWritable("/base/A.TJB", c.writable);
    prompts.boxes.clear();
    prompts.answers = {c.answer};
    EXPECT_EQ(document_.LeaveJob(c.forget), c.leaves);
    EXPECT_EQ(job_.Dirty, c.dirty);
    EXPECT_EQ(job_.Comment, "second");
    EXPECT_EQ(prompts.boxes.at(0).text, "Do you want to save this job?");
    EXPECT_EQ(prompts.boxes.at(0).buttons, platform::Buttons::YesNo);
    if (!c.leaves) {
      EXPECT_EQ(prompts.boxes.at(1).text, "Save(A.TJB) Permission denied");
    }
  }
}

TEST(Selection, LinesAreToggled) {
  const char* const toggles[][3] = {{"", "4", "4"}, {"4", "4", ""}, {"3,7,8", "7", "3,8"}, {"8", "3", "8,3"}};
  for (const auto& [before, line, after] : toggles) {
    EXPECT_EQ(textjob::ToggleLine(before, std::atoi(line)), after);
  }
}

TEST(PositionText, InTheUsersPictureAndWithTheSide) {
  recipes::Fixture index;
  index.Type = recipes::kFixtureIndex;
  index.Flat = 2;
  EXPECT_EQ(textjob::PositionText(1.2344, -2, "0.000", nullptr), "1.234 , -2.000");
  EXPECT_EQ(textjob::PositionText(1, 3.9, "0.0", &index), "1.0 , 3.9 Side 2");
  EXPECT_EQ(textjob::PositionText(1, 4, "0.0", &index), "1.0 , 4.0 Side 3");
  index.Flat = 0;
  EXPECT_EQ(textjob::PositionText(1, 4, "0.0", &index), "1.0 , 4.0");
}

}  // namespace
}  // namespace morvane::test
