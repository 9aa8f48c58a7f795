#include "textjob/frmReorder.h"

#include <QListWidget>
#include <QPushButton>

#include "support/qt_WindowStation.h"
#include "textjob/frmEdit.h"

namespace morvane::test {
namespace {

using Lines = std::vector<std::string>;

TEST(frmReorder, MovesTheChosenLineAndSelectsItInTheEditor) {
  WindowStation station;
  station.folder.Write("A.TJB", "COMMENT,\r\n4,1,1\r\n12,2,2\r\n4,3.5,3\r\n");
  station.Load();
  station.windows.OpenFile(station.folder / "A.TJB");
  station.job.Selection = "2";
  Lines noted;
  textjob::frmReorder form(
      station.context, [&] { noted = station.job.Lines; }, &station.Frame());
  form.show();
  form.activateWindow();
  WindowStation::Pump();
  auto& list = Find<QListWidget>(form, "List1");
  EXPECT_EQ(form.windowTitle(), "Reorder");
  EXPECT_EQ(list.currentItem()->text(), "MOVE  (3.5,3)");
  for (const char* name : {"cmdDown", "cmdUp"}) Find<QPushButton>(form, name).click();
  EXPECT_EQ(noted, (Lines{"4,1,1", "4,3.5,3", "12,2,2"})) << "the last has nothing below it";
  EXPECT_EQ(list.currentItem()->text(), "MOVE  (3.5,3)");
  EXPECT_EQ(station.job.Selection, "1") << "it follows its line";
  EXPECT_EQ(Find<QListWidget>(station.Active<textjob::frmEdit>(), "cmbLine").currentRow(), 1);
  for (int i = 0; i < 2; ++i) QTest::keyClick(&list, Qt::Key_Up, Qt::ControlModifier);
  EXPECT_EQ(station.job.Lines, (Lines{"4,3.5,3", "4,1,1", "12,2,2"}));
  Find<QPushButton>(form, "cmdExit").click();
  EXPECT_FALSE(form.isVisible());
}

}  // namespace
}  // namespace morvane::test
