// Words that windows show and that no test of their behaviour meets.
#include <QLabel>
#include <QPushButton>

#include "app/frmAbout.h"
#include "fonts/frmFontView.h"
#include "support/qt_WindowStation.h"
#include "textjob/frmEdit.h"

namespace morvane::test {
namespace {

TEST(Captions, StandOnTheirControls) {
  WindowStation station;
  station.Load();
  const std::pair<const char*, const char*> captions[] = {
      {"labDraw", "Draw"}, {"labSel", "Sel"}, {"labTool", "Tool"}, {"labGrid", "Grid"}, {"labRef", "Ref"}};
  auto& editor = station.Active<textjob::frmEdit>();
  for (const auto& [name, caption] : captions) EXPECT_EQ(Find<QLabel>(editor, name).text(), caption);
  EXPECT_EQ(Find<QPushButton>(editor, "cmdOpenFile").toolTip(), "Not available in this version yet");
  EXPECT_EQ(editor.windowTitle(), "Text Job - <NEW>[*]");
  EXPECT_EQ(fonts::frmFontView(station.context).windowTitle(), "Font Viewer");
  station.prompts.files.push_back({});
  station.Entry("mnuGraphicView").trigger();
  EXPECT_EQ(station.prompts.requests.at(0).filter, "Job Files|*.JOB|All Files|*.*");
}

TEST(Captions, AboutTellsTheBuild) {
  const app::frmAbout about(nullptr);
  EXPECT_EQ(Find<QLabel>(about, "lblTitle").text(), "Morvane");
  EXPECT_EQ(Find<QLabel>(about, "lblVersion").text(), "Version 1.0.0");
  EXPECT_EQ(Find<QLabel>(about, "lblBuildDate").text().left(11), "Built on 20");
}

}  // namespace
}  // namespace morvane::test
