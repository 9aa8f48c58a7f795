#include "textjob/ui/frmEdit.h"

#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QStatusBar>
#include <QTimer>
#include <QToolButton>

#include "support/qt_Pixels.h"
#include "support/qt_WindowStation.h"
#include "widgets/canvas/CanvasView.h"
#include "widgets/grid/CellGrid.h"

namespace morvane::test {
namespace {

using platform::Answer;

const QColor kDraw(0, 255, 255);
const QColor kSelected(255, 0, 0);

// A font whose letter A is a stroke down and one to the right; two lines of text far apart.
class frmEditTest : public ::testing::Test {
 protected:
  frmEditTest() {
    std::string font;
    for (int code = 1; code <= 255; ++code) {
      font += std::to_string(code) + (code == 'A' ? ":0,0,0,1;0,1,1,1" : ":") + "\r\n";
    }
    station.folder.Write("FONT1.fnt", font);
    station.folder.Write("ONE.TJB",
                         "COMMENT,The first\r\n0,1,1,1,FONT1.fnt,0,0,0,0,A@@,1\r\n"
                         "0,4,2.5,1,FONT1.fnt,0,0,0,0,A@@,1\r\n4,3,3\r\n");
    station.folder.Write("TWO.TJB", "COMMENT,The second\r\n4,1,1\r\n");
    station.Load();
  }
  textjob::frmEdit& Form() { return station.Active<textjob::frmEdit>(); }
  template <typename T>
  T& Control(const char* name) {
    return Find<T>(Form(), name);
  }
  widgets::CanvasView& pic() { return Control<widgets::CanvasView>("pic"); }
  void Open(const char* name) {
    station.windows.OpenFile(station.folder / name);
    WindowStation::Pump();
  }
  void ClickWorld(double x, double y, Qt::KeyboardModifiers modifiers = {}) {
    QTest::mouseClick(&pic(), Qt::LeftButton, modifiers, pic().FromWorld({x, y}).toPoint());
  }
  QStringList Lines() {
    QStringList lines;
    for (int row = 0; row < Control<QListWidget>("cmbLine").count(); ++row) {
      lines << Control<QListWidget>("cmbLine").item(row)->text();
    }
    return lines;
  }

  WindowStation station;
};

TEST_F(frmEditTest, AJobIsShownAsItIs) {
  EXPECT_EQ(Control<QComboBox>("cmbFile").currentText(), "<NEW>");
  EXPECT_TRUE(Lines().isEmpty());
  station.prompts.files.push_back({station.folder / "ONE.TJB"});
  station.Entry("mnuFileOpen").trigger();
  EXPECT_EQ(station.prompts.requests.at(0).filter, "TJB Files (*.TJB)|*.TJB");
  EXPECT_EQ(Control<QComboBox>("cmbFile").currentText(), "ONE.TJB");
  EXPECT_EQ(Find<QToolButton>(station.Frame(), "panelJob").text(), "ONE.TJB");
  EXPECT_EQ(Control<QLineEdit>("txtComments").text(), "The first");
  EXPECT_EQ(Lines(), QStringList({"Line 1: A", "Line 2: A", "Line 3: MOVE"}));
  EXPECT_GT(CountPixels(pic(), kDraw), 100);
  EXPECT_EQ(CountPixels(pic(), kSelected), 0);
}

TEST_F(frmEditTest, LinesAreSelectedInTheListAndOnTheDrawing) {
  Open("ONE.TJB");
  auto& list = Control<QListWidget>("cmbLine");
  QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualItemRect(list.item(1)).center());
  EXPECT_EQ(station.job.Selection, "1");
  EXPECT_GT(CountPixels(pic(), kSelected), 50);
  ClickWorld(1.1, 1.9);
  EXPECT_EQ(station.job.Selection, "0");
  EXPECT_EQ(list.currentRow(), 0);
  ClickWorld(4.8, 3.4, Qt::ControlModifier);
  EXPECT_EQ(station.job.Selection, "0,1");
  EXPECT_EQ(list.selectedItems().size(), 2);
}

TEST_F(frmEditTest, TheMousePositionIsInTheUsersUnits) {
  station.Set("UnitsFormat", "0.0");
  const QPoint at = pic().FromWorld({3, 2}).toPoint();
  QTest::mouseMove(&pic(), at);
  const auto& panel = Find<QLabel>(station.Frame(), "panelMouse");
  EXPECT_EQ(panel.text(), "3.0 , 2.0");
}

TEST_F(frmEditTest, TheSelectorAsksForAChangedJob) {
  Open("ONE.TJB");
  auto& selector = Control<QComboBox>("cmbFile");
  station.Frame().activateWindow();
  Control<QLineEdit>("txtComments").setFocus();
  QTest::keyClicks(&Control<QLineEdit>("txtComments"), "!");
  EXPECT_TRUE(Form().isWindowModified());
  station.prompts.answers = {Answer::Yes};
  selector.setFocus(Qt::TabFocusReason);
  EXPECT_EQ(station.prompts.Texts(), std::vector<std::string>{"Do you want to save this job?"});
  EXPECT_EQ(station.folder.Read("ONE.TJB").substr(0, 20), "COMMENT,!The first\r\n");
  QTest::keyClick(&selector, Qt::Key_Down);
  EXPECT_EQ(station.job.Comment, "The second");
}

TEST_F(frmEditTest, ClosingDropsTheJobWhateverTheAnswer) {
  for (const Answer answer : {Answer::No, Answer::Yes}) {
    station.Entry("mnuFileEdit").trigger();
    Open("TWO.TJB");
    QTest::keyClicks(&Control<QLineEdit>("txtComments"), "x");
    station.prompts.answers = {answer};
    station.Entry("mnuFileClose").trigger();
    EXPECT_EQ(station.job.LineCount(), 0U);
    EXPECT_EQ(station.folder.Read("TWO.TJB").find("xThe second") != std::string::npos, answer == Answer::Yes);
  }
}

TEST_F(frmEditTest, ToolPathMarkDrawsItsLines) {
  Open("ONE.TJB");
  const QColor green(0, 255, 0);
  EXPECT_EQ(CountPixels(pic(), green), 0);
  station.Entry("mnuViewToolPath").trigger();
  EXPECT_GT(CountPixels(pic(), green), 100);
}

TEST_F(frmEditTest, AClickEditsAndARightClickMoves) {
  Open("ONE.TJB");
  auto& grid = Control<widgets::CellGrid>("PropertyGrid");
  station.Frame().activateWindow();
  ClickWorld(1.1, 1.9);
  auto* editor = qobject_cast<QLineEdit*>(QApplication::focusWidget());
  ASSERT_TRUE(editor != nullptr && editor->objectName() == "txtSelect");
  const int before = CountPixels(pic(), kSelected);
  QTest::keyClicks(editor, "AAA");
  EXPECT_EQ(Lines().at(0), "Line 1: AAA");
  EXPECT_GT(CountPixels(pic(), kSelected), before * 2);
  EXPECT_TRUE(Form().isWindowModified());
  QTest::keyClick(editor, Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Lines().at(0) + editor->text(), "Line 1: AA") << "one visit, one step; the box follows";

  station.prompts.answers = {Answer::Yes};
  QTest::mouseClick(&pic(), Qt::RightButton, {}, pic().FromWorld({2, 2}).toPoint());
  EXPECT_FALSE(grid.EditorOpen());
  EXPECT_NE(station.prompts.Texts().at(0).find("Do you wish to move this object to "), std::string::npos);
  EXPECT_EQ(station.job.Lines.at(0).substr(0, 3), "0,2");

  // Two lines: their common rows, and the group's offset.
  const QPoint corner = pic().FromWorld({0.5, 0.5}).toPoint();
  QTest::mousePress(&pic(), Qt::LeftButton, {}, corner);
  QTest::mouseMove(&pic(), corner + QPoint(40, 40));
  QTest::mouseMove(&pic(), pic().FromWorld({3.5, 3.5}).toPoint());
  QTest::mouseRelease(&pic(), Qt::LeftButton, {}, pic().FromWorld({3.5, 3.5}).toPoint());
  EXPECT_EQ(station.job.Selection, "0,2");
  EXPECT_EQ(grid.CellText(0, 0), "X pos");
  QString title;
  QTimer::singleShot(0, &Form(), [&] {
    title = QApplication::activeModalWidget()->windowTitle();
    QApplication::activeModalWidget()->close();
  });
  station.Entry("mnuFileOffset").trigger();
  EXPECT_EQ(title, "Offset TJB Group");
}

TEST_F(frmEditTest, LinesGoOverTheClipboardAndABadOneIsToldOnce) {
  Open("ONE.TJB");
  station.Frame().activateWindow();
  auto& list = Control<QListWidget>("cmbLine");
  list.setFocus();
  list.setCurrentRow(2);
  for (const auto key : {Qt::Key_C, Qt::Key_V, Qt::Key_D}) QTest::keyClick(&list, key, Qt::ControlModifier);
  EXPECT_EQ(station.clipboard.text, "4,3,3\r\n");
  EXPECT_EQ(Lines().size(), 5);
  QTest::keyClick(&list, Qt::Key_X, Qt::ControlModifier);
  EXPECT_EQ(Lines().size(), 4);
  station.clipboard.text = "0,1,1,1,FONT1.fnt,7,0,0,0,A@@\r\n";
  QTest::keyClick(&list, Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(station.prompts.Texts(), std::vector<std::string>{"DrawLine-Subscript out of range"});
  auto& grid = Control<widgets::CellGrid>("PropertyGrid");
  EXPECT_EQ(grid.RowCount(), 0);
  Control<QPushButton>("cmdDeleteLine").click();
  EXPECT_EQ(grid.RowCount(), 5);
  // The line behind a deleted one has its number, but not its values.
  Form().SelectLine(0);
  grid.SetCurrentCell(2, 1, false);
  Control<QPushButton>("cmdDeleteLine").click();
  const std::vector<std::string> left = station.job.Lines;
  QTest::keyClick(&grid, Qt::Key_Escape);
  EXPECT_EQ(station.job.Lines, left);
}

TEST_F(frmEditTest, OnlyLinesWithAFileOfTheirOwnHaveAnOpener) {
  station.folder.Write("FILES.TJB", "4,1,1\r\n7,2,2,0,,0,0,0,0,F.FIL@@\r\n");
  Open("FILES.TJB");
  auto& opener = Control<QPushButton>("cmdOpenFile");
  EXPECT_TRUE(opener.isHidden());
  Form().SelectLine(1);
  EXPECT_TRUE(!opener.isHidden() && !opener.isEnabled());
  QTest::mouseDClick(&pic(), Qt::LeftButton, {}, pic().FromWorld({2, 2}).toPoint());
  EXPECT_EQ(station.Frame().statusBar()->currentMessage(), "Not available in this version yet");
}

TEST_F(frmEditTest, ChangesOfAProgramThatDiedAreOfferedAndGoWithTheirSave) {
  Open("ONE.TJB");
  station.job.Lines.push_back("4,9,9");
  station.job.Dirty = true;
  station.recovery.BeforeSave(station.job, "ONE.TJB");
  station.job = {};
  station.prompts.answers = {Answer::Yes};
  EXPECT_TRUE(station.windows.OfferRecovery());
  EXPECT_EQ(Lines().size(), 4);
  EXPECT_TRUE(Form().isWindowModified());
  Control<QPushButton>("cmdSave").click();
  EXPECT_NE(station.folder.Read("ONE.TJB").find("4,9,9"), std::string::npos);
  EXPECT_FALSE(station.windows.OfferRecovery());
}

// A raster line bakes its bitmap with a side program, and windows live on meanwhile.
class SlowPass : public frmEditTest {
 protected:
  SlowPass() {
    station.folder.Write("PIXBAKE.EXE", "program");
    station.folder.Write("P.RAS", "raster");
    station.folder.Write("SLOW.TJB", "COMMENT,slow\r\n16,1,1,1,,0,0,0,0,P.RAS@@,1\r\n");
    station.processes.scripts.push_back({true, 30, 0, {}});
  }
  // Does this once, in the middle of the pass.
  void InPass(std::function<void()> act) {
    station.clock.onWait = [this, act = std::move(act)](int) {
      const platform::Operations::Scope scope(station.operations);
      if (!std::exchange(done, true)) act();
      WindowStation::Pump();
    };
  }
  bool done = false;
};

TEST_F(SlowPass, AnotherJobMayBeChosenMeanwhile) {
  InPass([&] { Open("ONE.TJB"); });
  Open("SLOW.TJB");
  EXPECT_TRUE(done);
  EXPECT_EQ(Lines(), QStringList({"Line 1: A", "Line 2: A", "Line 3: MOVE"}));
  EXPECT_EQ(Control<QLineEdit>("txtComments").text(), "The first");
}

TEST_F(SlowPass, TheEditorMayBeClosedMeanwhile) {
  QPointer<textjob::frmEdit> form(&Form());
  InPass([&] {
    station.Entry("mnuFileClose").trigger();
    WindowStation::Pump();
    EXPECT_FALSE(form.isNull()) << "its pass is still on the stack";
  });
  Open("SLOW.TJB");
  EXPECT_TRUE(done);
  EXPECT_TRUE(station.processes.runs.at(0).terminated);
  WindowStation::Pump();
  EXPECT_TRUE(form.isNull());
  EXPECT_FALSE(station.abort);
}

// What is typed in a pass, and in the one that follows it, meets the job as it stands.
TEST_F(SlowPass, TypingMeanwhileIsNotLost) {
  station.processes.scripts.push_back({true, 30, 0, {}});
  station.folder.Write("SLOW.TJB", "16,1,1,1,,0,0,0,0,P.RAS@@,1\r\n4,1,2\r\n4,3,4\r\n");
  auto& grid = Control<widgets::CellGrid>("PropertyGrid");
  std::size_t acted = 0;
  station.clock.onWait = [&](int) {
    const platform::Operations::Scope scope(station.operations);
    if (acted == station.processes.runs.size() || ++acted > 2) return;
    if (acted == 1) Form().SelectLine(1);
    grid.SetCurrentCell(acted == 1 ? 3 : 2, 1, false);
    QTest::keyClick(&grid, Qt::Key_5);
    QTest::keyClick(&Control<QLineEdit>("txtComments"), Qt::Key_A);
  };
  Open("SLOW.TJB");
  EXPECT_GE(acted, 2U);
  EXPECT_EQ(station.job.Lines[0], "16,1,1,1,,0,0,0,0,P.RAS@@,1");
  EXPECT_EQ(station.job.Lines[1].substr(0, 41), "4,1,2.0005,0,.fnt,0,0,0,0,@@,0,0,15,0.000");
  EXPECT_EQ(station.job.Comment, "aa");
  // The rows of another line are there before its pass has ended.
  station.processes.scripts.push_back({true, 30, 0, {}});
  station.clock.onWait = [&](int) {
    if (acted != 0) QTest::keyClick(&grid, Qt::Key_6);
    acted = 0;
  };
  Form().SelectLine(2);
  EXPECT_EQ(station.job.Lines[2].substr(0, 41), "4,3,4.0006,0,.fnt,0,0,0,0,@@,0,0,1,0.000,");
}

}  // namespace
}  // namespace morvane::test
