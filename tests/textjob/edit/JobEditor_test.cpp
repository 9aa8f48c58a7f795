// What the controls and keys of the editor do to its job.
#include "textjob/edit/JobEditor.h"

#include <gtest/gtest.h>

#include "support/BaseStation.h"
#include "support/FakeClipboard.h"

namespace morvane::test {
namespace {

using platform::Answer;
using textjob::FindRow;

class JobEditorTest : public testing::Test, public test::BaseStation {
 protected:
  void Load(std::vector<std::string> lines, const std::string& selection) {
    job_ = {};
    job_.Lines = std::move(lines);
    editor_.Loaded();
    Select(selection);
  }
  void Select(const std::string& selection) {
    editor_.Select(selection);
    Draw();
  }
  void Draw() { editor_.ReadRows(rows_); }
  // Types into a row, one key after the other.
  void Type(const std::string& label, const std::vector<std::string>& values) {
    editor_.EnterRow();
    for (const std::string& value : values) {
      EXPECT_TRUE(editor_.CommitRow(FindRow(editor_.Rows(), label), value)) << label;
      Draw();
    }
  }
  void Set(const std::string& key, const std::string& value) {
    settings.SaveSetting(common::kSettingsSection, key, value);
  }

  FakeClipboard clipboard_;
  textjob::TextJob job_;
  textjob::JobDocument document_{job_, files, prompts, dialogs};
  textjob::JobEditor editor_{{job_, document_, files, settings, clock, locale, prompts, clipboard_}};
  textjob::RowContext rows_;
};

const std::string kZeros = ",0,@@,0,0,0,0,0,0,0,0,0,0,0,0,0,0";

TEST_F(JobEditorTest, ARightClickMovesWhenItIsWanted) {
  recipes::Fixture fixture;
  fixture.Type = recipes::kFixtureIndex;
  fixture.Flat = 2;
  rows_.sides = true;
  Load({"4,1,2", "4,3,4", "15,0,0"}, "0");
  prompts.answers = {Answer::No, Answer::Yes, Answer::Yes};
  EXPECT_FALSE(editor_.MoveTo(1.23456, 5, &fixture));
  EXPECT_TRUE(editor_.MoveTo(1.23456, 5, &fixture));
  EXPECT_EQ(job_.Lines[0], "4,1.235,1,0,.fnt,0,0,0,0,@@,0,3,1,0.000" + kZeros);
  Select("0,1");
  EXPECT_TRUE(editor_.MoveTo(0, 0.5, &fixture));
  EXPECT_EQ(job_.Lines[1], "4,0,0.5,0,,0,0,0,0,@@,1,1,1,0.000,0,@@,1,1,0,0,0,0,0,0,0,1,0,0,0,0");
  EXPECT_EQ(prompts.Texts(),
            (std::vector<std::string>{"Do you wish to move this object to 1.235 , 1.000 ?",
                                      "Do you wish to move this object to 1.235 , 1.000 ?",
                                      "Do you wish to move these objects to 0.000 , 0.500 ?"}));
  EXPECT_TRUE(editor_.Undo()) << "one step for three rows";
  EXPECT_EQ(job_.Lines[1], "4,3,4");
  Set("PromptMove", "0");
  EXPECT_TRUE(editor_.MoveTo(7, 8, nullptr)) << "without a question";
  Select("2");
  EXPECT_FALSE(editor_.MoveTo(7, 8, nullptr)) << "no line with a position";
}

TEST_F(JobEditorTest, FailuresAreToldAndNothingIsLost) {
  Load(std::vector<std::string>(textjob::kMaxLines, "4,1,2"), "1000");
  const auto lines = job_.Lines;
  clipboard_.text = "4,9,9\r\n";
  EXPECT_FALSE(editor_.NewLine());
  EXPECT_FALSE(editor_.Paste());
  EXPECT_FALSE(editor_.Duplicate());
  EXPECT_EQ(job_.Lines, lines);
  EXPECT_FALSE(job_.Dirty);

  // A style beyond its table: told once, and the line can still be left and deleted.
  Load({"0,0,0,1,F.fnt,9,0,0,0,x@@", "4,1,2"}, "0");
  Draw();
  EXPECT_TRUE(editor_.Rows().empty());
  EXPECT_FALSE(editor_.CommitRow(0, "x"));
  EXPECT_TRUE(editor_.DeleteLine());

  // An image that cannot move keeps the lines in their place.
  Set("BackgroundImage", "P.BMP");
  disk.faults.bytesLeft = 0;
  EXPECT_FALSE(editor_.Offset("1", "1", ""));
  EXPECT_EQ(job_.Lines, std::vector<std::string>{"4,1,2"});
  EXPECT_EQ(prompts.Texts(), (std::vector<std::string>{
                                 "NewJobLine-Subscript out of range", "PasteLines-Subscript out of range",
                                 "DuplicateLines-Subscript out of range", "DrawLine-Subscript out of range",
                                 "OffsetLines-Disk full"}));
}

TEST_F(JobEditorTest, UndoTakesBackVisitsAndWhatAnOffsetMoved) {
  Set("BackgroundImage", "P.BMP");
  const std::string ini = disk.Get("/base/Morvane.ini");
  const std::vector<std::string> loaded = {"0,0,0,1,F.fnt,0,0,0,0,x@@", "4,1,2"};
  Load(loaded, "0");
  Type("Text", {"xA", "xAB", "xA\rBC"});
  Type("Text", {"xABCD"});
  EXPECT_TRUE(editor_.StepRow(FindRow(editor_.Rows(), "Angle"), 1) == false);
  EXPECT_TRUE(editor_.StepRow(FindRow(editor_.Rows(), "X pos"), -5));
  EXPECT_EQ(job_.Lines[0].substr(0, 6), "0,-0.5");
  editor_.SetComment("c\r\nd\n");
  EXPECT_EQ(job_.Comment, "c d ") << "a pasted line end would begin a job line in the file";
  editor_.Offset("1", "2abc", "");
  EXPECT_NE(disk.Get("/base/Morvane.ini"), ini);
  EXPECT_TRUE(editor_.Undo());
  EXPECT_EQ(disk.Get("/base/Morvane.ini"), ini);
  for (const char* step : {"comment", "step", "second visit", "first visit"}) {
    EXPECT_TRUE(editor_.Undo()) << step;
  }
  EXPECT_FALSE(editor_.Undo());
  EXPECT_EQ(job_.Lines, loaded);
  EXPECT_FALSE(job_.Dirty);
  for (int step = 0; step < 5; ++step) EXPECT_TRUE(editor_.Redo());
  EXPECT_FALSE(editor_.Redo());
  EXPECT_EQ(job_.Lines[1].substr(0, 5), "4,2,4");
}

TEST_F(JobEditorTest, LinesInARectangleAndOnTheClipboard) {
  Load({"4,1,1", "12,1,1", "15,1,1", "0,5,1,1,F,0,0,0,0,a@@,1,2", "4,2,2"}, "");
  editor_.SelectInside({0, 0, 2, 2}, nullptr, false);
  EXPECT_EQ(job_.Selection, "0,4");
  recipes::Fixture fixture;
  fixture.Type = recipes::kFixtureIndex;
  fixture.Flat = 3;
  editor_.SelectInside({1.5F, 0, 9, 9}, &fixture, true);
  EXPECT_EQ(job_.Selection, "0,3");
  EXPECT_FALSE(editor_.Copy());
  EXPECT_EQ(clipboard_.text, "4,1,1\r\n0,5,1,1,F,0,0,0,0,a@@,1,2\r\n");
  EXPECT_TRUE(editor_.Cut());
  EXPECT_EQ(job_.LineCount(), 3U);
  Select("2");
  EXPECT_TRUE(editor_.Paste());
  EXPECT_EQ(job_.Selection + '/' + job_.Lines[4], "3,4/0,5,1,1,F,0,0,0,0,a@@,1,2");
}

}  // namespace
}  // namespace morvane::test
