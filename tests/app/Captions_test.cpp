// Words that windows show and that no test of their behaviour meets.
#include <QLabel>
#include <QPushButton>

#include "app/frmAbout.h"
#include "fonts/ui/frmFontView.h"
#include "support/qt_WindowStation.h"
#include "textjob/ui/frmEdit.h"
#include "textjob/ui/frmReorder.h"
#include "widgets/frmOffset.h"

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

TEST(Captions, OfTheEditorAndItsDialogs) {
  WindowStation station;
  station.Load();
  const textjob::frmReorder reorder(station.context, {}, nullptr);
  const widgets::frmOffset offset({}, station.context.settings, nullptr);
  const QObject& editor = station.Active<textjob::frmEdit>();
  const struct {
    const QObject& window;
    const char *control, *property, *words;
  } cases[] = {
      {editor, "labFile", "text", "&Job"},
      {editor, "cmbFile", "toolTip", "The jobs of the working folder"},
      {editor, "cmdSave", "text", "&Save"},
      {editor, "labComments", "text", "Co&mments"},
      {editor, "cmbLine", "toolTip", "The lines of the job; the selected ones are drawn in their own colour"},
      {editor, "cmdNewLine", "text", "New Line"},
      {editor, "cmdDeleteLine", "text", "Delete Line"},
      {editor, "cmdReorder", "text", "Reorder"},
      {editor, "cmdOpenFile", "text", "&Open File"},
      {editor, "cmdDownload", "text", "Download"},
      {editor, "cmdDownloadRun", "text", "D/L and Run"},
      {editor, "cmdUpload", "text", "Upload"},
      {editor, "cmdUndo", "toolTip", "Undo (Ctrl+Z)"},
      {editor, "cmdRedo", "toolTip", "Redo (Ctrl+Y)"},
      {editor, "actUndo", "text", "Undo"},
      {editor, "actRedo", "text", "Redo"},
      {editor, "actCut", "text", "Cut Lines"},
      {editor, "actCopy", "text", "Copy Lines"},
      {editor, "actPaste", "text", "Paste Lines"},
      {editor, "actDuplicate", "text", "Duplicate Lines"},
      {reorder, "cmdUp", "text", "&Up"},
      {reorder, "cmdUp", "toolTip", "Swap the line with the one above it (Ctrl+Up)"},
      {reorder, "cmdDown", "text", "&Down"},
      {reorder, "cmdDown", "toolTip", "Swap the line with the one below it (Ctrl+Down)"},
      {reorder, "cmdExit", "text", "E&xit"},
      {offset, "cmdOk", "text", "&OK"},
      {offset, "cmdCancel", "text", "&Cancel"}};
  for (const auto& [window, control, property, words] : cases) {
    EXPECT_EQ(Find<QObject>(window, control).property(property).toString(), words) << control;
  }
}

TEST(Captions, AboutTellsTheBuild) {
  const app::frmAbout about(nullptr);
  EXPECT_EQ(Find<QLabel>(about, "lblTitle").text(), "Morvane");
  EXPECT_EQ(Find<QLabel>(about, "lblVersion").text(), "Version 1.0.0");
  EXPECT_EQ(Find<QLabel>(about, "lblBuildDate").text().left(11), "Built on 20");
}

}  // namespace
}  // namespace morvane::test
