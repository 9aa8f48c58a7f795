// The windows that show a G-code job: the job viewer, the small viewer, the panel of the open dialog.
#include "gcode/ui/frmGraphic.h"

#include <QCheckBox>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QToolButton>

#include "gcode/ui/JobView.h"
#include "gcode/ui/frmPreview.h"
#include "gcode/ui/frmViewer.h"
#include "support/qt_Pixels.h"
#include "support/qt_WindowStation.h"
#include "widgets/NotAvailable.h"

namespace morvane::test {
namespace {

const QColor kTool1(255, 0, 0);
const QColor kTool3(0, 255, 0);
const QColor kFeed(0, 255, 255);
const QColor kRapid(255, 0, 255);

class JobViewers : public ::testing::Test {
 protected:
  JobViewers() {
    station.folder.Write("A.JOB", "G00X1Y1\r\nG01X3Y1\r\nG00X3Y2\r\nM06T3\r\nG01X3Y3\r\nG00X0Y3\r\n");
    station.Set("Color2", std::to_string(255 + 255 * 65536));
  }
  int Count(QWidget& form, const QColor& color) {
    return CountPixels(Find<widgets::JobView>(form, "pic"), color);
  }

  WindowStation station;
};

TEST_F(JobViewers, TheJobViewerShowsOneToolOrAll) {
  station.Load();
  station.prompts.files.push_back({station.folder / "A.JOB"});
  station.Entry("mnuGraphicView").trigger();
  auto& form = station.Active<gcode::frmGraphic>();
  EXPECT_EQ(form.windowTitle(), "Job Viewer - A.JOB");
  EXPECT_EQ(Find<QPushButton>(form, "cmdEditTools").text(), "Edit Tool File");
  auto& rapids = Find<QCheckBox>(form, "chkPenup");
  EXPECT_EQ(rapids.text(), "Show ToolUp Moves");
  EXPECT_EQ(Find<QCheckBox>(form, "chkShowAllTools").text(), "Show All Tools");
  rapids.setChecked(true);
  const auto expect = [&](bool tool1, bool tool3, bool moves) {
    EXPECT_EQ(Count(form, kTool1) > 50, tool1);
    EXPECT_EQ(Count(form, kTool3) > 50, tool3);
    EXPECT_EQ(Count(form, kRapid) > 50, moves);
  };
  expect(true, false, true);
  Find<QToolButton>(form, "picColor2").click();
  expect(false, true, true);
  Find<QCheckBox>(form, "chkShowAllTools").click();
  expect(true, true, true);
  rapids.click();
  expect(true, true, false);
}

TEST_F(JobViewers, AChangedFileIsReadAnewAndAMissingOneShowsNothing) {
  station.Load();
  station.windows.OpenGraphicViewer("A.JOB");
  auto& form = station.Active<gcode::frmGraphic>();
  EXPECT_GT(Count(form, kTool1), 50);
  std::filesystem::remove(station.folder / "A.JOB");
  Find<QToolButton>(form, "picColor0").click();
  EXPECT_EQ(Count(form, kTool1), 0);
  station.windows.OpenGraphicViewer("TEXTJOB.JOB");
  EXPECT_EQ(station.Active<gcode::frmGraphic>().windowTitle(), "Job Viewer - TEXTJOB.JOB");
  EXPECT_TRUE(station.prompts.boxes.empty());
}

TEST_F(JobViewers, TheSmallViewerKeepsItsOwnSurface) {
  gcode::frmViewer form(station.context, "A.JOB");
  form.show();
  auto& view = Find<widgets::JobView>(form, "pic");
  const QColor red(255, 0, 0);
  EXPECT_EQ(Find<QCheckBox>(form, "chkPenup").text(), "Show PenUp Moves");
  EXPECT_GT(Count(form, red), 20);
  EXPECT_GT(Count(form, Qt::black), 20);
  Find<QCheckBox>(form, "chkPenup").setChecked(false);
  EXPECT_EQ(Count(form, red), 0);
  using Step = std::tuple<const char*, float, float>;  // left, width
  for (const auto& [button, left, width] :
       {Step{"cmdZoomIn", 0, 3}, Step{"cmdRight", 3, 3}, Step{"cmdLeft", 0, 3}, Step{"cmdZoomOut", 0, 6}}) {
    Find<QPushButton>(form, button).click();
    EXPECT_FLOAT_EQ(view.FitView().Left, left) << button;
    EXPECT_FLOAT_EQ(view.FitView().Width, width) << button;
  }
}

TEST_F(JobViewers, ThePanelShowsDrawingOrTextOrNothing) {
  gcode::frmPreview panel(station.context);
  panel.show();
  auto& picture = Find<widgets::JobView>(panel, "pic");
  auto& text = Find<QPlainTextEdit>(panel, "txtGCode");
  EXPECT_EQ(Find<QRadioButton>(panel, "optGraphic").text(), "&Graphic");
  EXPECT_EQ(Find<QRadioButton>(panel, "optGCode").text(), "G-Code");
  EXPECT_EQ(Find<QCheckBox>(panel, "chkMoves").text(), "&Show Moves");
  panel.ShowFile("A.JOB");
  EXPECT_TRUE(picture.isVisible() && !text.isVisible());
  EXPECT_GT(CountPixels(picture, kFeed), 50);
  EXPECT_GT(CountPixels(picture, kRapid), 50);
  Find<QCheckBox>(panel, "chkMoves").setChecked(false);
  EXPECT_EQ(CountPixels(picture, kRapid), 0);
  Find<QRadioButton>(panel, "optGCode").click();
  EXPECT_TRUE(!picture.isVisible() && text.isVisible());
  EXPECT_TRUE(text.toPlainText().startsWith("G00X1Y1\nG01X3Y1\n"));
  panel.ShowFile("");
  EXPECT_EQ(text.toPlainText(), "");
  Find<QCheckBox>(panel, "chkPreview").click();
  EXPECT_TRUE(!picture.isVisible() && !text.isVisible());
}

}  // namespace
}  // namespace morvane::test
