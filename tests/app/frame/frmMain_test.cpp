#include "app/frame/frmMain.h"

#include <QLabel>
#include <QMdiArea>
#include <QMenu>
#include <QMimeData>
#include <QProgressBar>
#include <QStatusBar>
#include <QToolButton>

#include "fonts/ui/frmFontView.h"
#include "gcode/ui/frmGraphic.h"
#include "support/qt_WindowStation.h"
#include "textjob/ui/frmEdit.h"

namespace morvane::test {
namespace {

TEST(frmMain, TitleMenusAndTempAsLoaded) {
  WindowStation station;
  std::filesystem::create_directory(station.folder / "Temp");
  station.folder.Write("Temp/tmp.lst", "left by a crash");
  app::frmMain& frame = station.Load();
  EXPECT_EQ(frame.windowTitle(), "Morvane V1.0.0");
  EXPECT_FALSE(std::filesystem::exists(station.folder / "Temp/tmp.lst"));
  EXPECT_FALSE(Find<QMenu>(frame, "mnuProduction").menuAction()->isVisible());
}

TEST(frmMain, GeometryIsInTwipsAndHeldAtItsLeast) {
  using Case = std::tuple<const char*, const char*, const char*, const char*, QRect>;
  for (const auto& [left, top, width, height, pixels] :
       {Case{"", "", "", "", {67, 67, 1000, 534}},
        Case{"1500", "900.4", "15000", "9000", {100, 60, 1000, 600}},
        Case{"1500", "900.4", "18000", "15000", {0, 0, 1000, 760}},  // the screen is 800 x 800
        Case{"15", "15", "300", "20", {1, 1, 1000, 534}}}) {
    WindowStation station;
    for (const auto& [key, value] : {std::pair{"MainLeft", left}, std::pair{"MainTop", top},
                                     std::pair{"MainWidth", width}, std::pair{"MainHeight", height}}) {
      if (*value != '\0') station.Set(key, value);
    }
    app::frmMain& frame = station.Load();
    EXPECT_EQ(QRect(frame.pos(), frame.size()), pixels);
    frame.resize(200, 100);
    EXPECT_EQ(frame.size(), QSize(1000, 534)) << "springs back";
    EXPECT_TRUE(station.prompts.boxes.empty());
  }
}

TEST(frmMain, AllMenusFitAtTheLeastWidth) {
  WindowStation station;
  station.Set("EnableProduction", "1");
  QMenuBar& bar = *station.Load().menuBar();
  const auto fits = [&bar] {
    const QList<QAction*> menus = bar.actions();
    return std::all_of(menus.begin(), menus.end(), [&bar](QAction* menu) {
      return menu->isVisible() && bar.rect().contains(bar.actionGeometry(menu));
    });
  };
  const QFont usual = QApplication::font(&bar);
  EXPECT_TRUE(fits());
  station.Frame().resize(2000, 600);
  EXPECT_TRUE(fits());
  EXPECT_EQ(bar.font(), usual) << "smaller only while there is no room";
}

TEST(frmMain, BadGeometryIsReportedAndTheDefaultsStand) {
  for (const auto& [value, message] :
       {std::pair{"wide", "MDIForm_Load-Type mismatch"}, std::pair{"1e300", "MDIForm_Load-Overflow"}}) {
    WindowStation station;
    station.Set("MainLeft", "3000");
    station.Set("MainWidth", value);
    app::frmMain& frame = station.Load();
    EXPECT_EQ(station.prompts.Texts(), std::vector<std::string>{message});
    EXPECT_EQ(QRect(frame.pos(), frame.size()), QRect(67, 67, 1000, 534));
  }
}

TEST(frmMain, WhatItLeavesBehind) {
  WindowStation station;
  station.Set("ViewGridLines", "True");
  app::frmMain& frame = station.Load();
  EXPECT_TRUE(station.Entry("mnuViewGridLines").isChecked());
  station.Entry("mnuViewGridLines").trigger();
  station.Entry("mnuViewFixture").trigger();
  station.folder.Write("Temp/queue.ret", "x");
  frame.move(30, 40);
  frame.resize(1100, 640);
  bool unloaded = false;
  QObject::connect(&frame, &app::frmMain::Unloaded, [&] { unloaded = true; });
  station.Entry("mnuFileExit").trigger();
  EXPECT_TRUE(unloaded);
  EXPECT_TRUE(station.abort);
  std::string kept;
  for (const char* key : {"MainLeft", "MainTop", "MainWidth", "MainHeight", "ViewGridLines", "ViewFixture",
                          "ViewToolPath", "ViewReferenceMarks", "ViewBackgroundImage"}) {
    kept += station.Get(key) + ' ';
  }
  EXPECT_EQ(kept, "450 600 16500 9600 False True False False False ");
  EXPECT_FALSE(std::filesystem::exists(station.folder / "Temp/queue.ret"));
}

TEST(frmMain, AFormThatMustStayKeepsTheProgram) {
  WindowStation station;
  station.folder.Write("A.TJB", "COMMENT,old\r\n");
  app::frmMain& frame = station.Load();
  station.windows.OpenFile(station.folder / "A.TJB");
  station.job.Comment = "new";
  station.job.Dirty = true;
  std::filesystem::remove_all(station.folder / "A.TJB");
  std::filesystem::create_directory(station.folder / "A.TJB");  // nothing can be saved there
  station.prompts.answers.push_back(platform::Answer::Yes);
  frame.close();
  EXPECT_TRUE(frame.isVisible());
  EXPECT_FALSE(station.abort) << "the program goes on";
  EXPECT_EQ(station.job.Comment, "new");
  station.prompts.answers.push_back(platform::Answer::No);
  frame.close();
  EXPECT_FALSE(frame.isVisible());
}

TEST(frmMain, StatusPanels) {
  WindowStation station;
  app::frmMain& frame = station.Load();
  auto& connection = Find<QToolButton>(frame, "panelConnection");
  EXPECT_EQ(connection.text(), "COM1");
  const char* const cases[][3] = {
      {"3", "", "COM3"}, {"5", "", ""}, {"5", "10.0.0.7", "10.0.0.7"}, {"junk", "", "COM0"}};
  for (const auto& [port, ip, text] : cases) {
    station.Set("ComPort", port);
    station.Set("IP", ip);
    station.Entry("mnuViewRefresh").trigger();
    EXPECT_EQ(connection.text(), text) << port;
  }

  auto& bar = Find<QProgressBar>(frame, "panelProgress");
  auto& transfer = Find<QLabel>(frame, "panelTransfer");
  station.context.progress.Set(1, 4);
  EXPECT_TRUE(bar.isVisible());
  EXPECT_EQ(bar.value() * 4, bar.maximum());
  EXPECT_EQ(transfer.text(), "1 of 4 bytes") << "no rate yet";
  station.clock.seconds += 2;
  station.context.progress.Set(5000, 0);
  EXPECT_EQ(bar.maximum(), 0) << "the end is not known";
  const QLocale locale;
  EXPECT_EQ(transfer.text(), QString("%1 bytes, %2 KB/s").arg(locale.toString(5000), locale.toString(2.5)));
  station.context.progress.Clear();
  EXPECT_FALSE(bar.isVisible() || transfer.isVisible());
}

TEST(frmMain, DroppedAndRecentFilesOpenInTheirWindows) {
  WindowStation station;
  station.folder.Write("A.TJB", "COMMENT,dropped\r\n");
  station.folder.Write("B.job", "G01X1Y1\r\n");
  station.folder.Write("C.fnt", "1:\r\n");
  station.folder.Write("D.txt", "");
  app::frmMain& frame = station.Load();
  QMimeData data;
  QList<QUrl> urls;
  for (const char* name : {"A.TJB", "B.job", "C.fnt", "D.txt"}) {
    urls << QUrl::fromLocalFile(QString::fromStdString(station.folder / name));
  }
  data.setUrls(urls);
  QDragEnterEvent enter(QPoint(50, 50), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
  QCoreApplication::sendEvent(&frame, &enter);
  ASSERT_TRUE(enter.isAccepted());
  QDropEvent drop(QPointF(50, 50), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
  QCoreApplication::sendEvent(&frame, &drop);
  WindowStation::Pump();
  EXPECT_EQ(station.job.Comment, "dropped");
  EXPECT_EQ(Find<QToolButton>(frame, "panelJob").text(), "A.TJB");
  EXPECT_EQ(Find<QLineEdit>(station.Active<fonts::frmFontView>(), "txtJob").text(), "C.fnt");
  EXPECT_EQ(frame.findChildren<gcode::frmGraphic*>().size(), 1);

  auto& file = Find<QMenu>(frame, "mnuFile");
  emit file.aboutToShow();
  const QList<QAction*> recent = Find<QMenu>(frame, "mnuFileRecent").actions();
  QStringList names;
  for (const QAction* action : recent) names << action->text();
  EXPECT_EQ(names, QStringList({"&1 C.fnt", "&2 B.job", "&3 A.TJB"}));
  recent[1]->trigger();
  EXPECT_EQ(station.Active<gcode::frmGraphic>().windowTitle(), "Job Viewer - B.job");
  EXPECT_EQ(frame.findChildren<gcode::frmGraphic*>().size(), 2) << "a viewer is new for each opening";
}

TEST(frmMain, SingleWindowsAreMadeOnceAndAnewAfterTheyWereClosed) {
  WindowStation station;
  app::frmMain& frame = station.Load();
  station.Entry("mnuFontView").trigger();
  station.Entry("mnuFileEdit").trigger();
  station.Entry("mnuFontView").trigger();
  EXPECT_EQ(frame.findChildren<fonts::frmFontView*>().size(), 1);
  EXPECT_FALSE(station.Entry("mnuFileSave").isEnabled()) << "the editor is not active";
  station.Entry("mnuFileEdit").trigger();
  station.Entry("mnuFileClose").trigger();
  {
    // While something runs, the closed editor lives on unseen, and a new one takes its place.
    const platform::Operations::Scope scope(station.operations);
    station.Entry("mnuFileEdit").trigger();
    station.Entry("mnuFileClose").trigger();
    station.Entry("mnuFileEdit").trigger();
    EXPECT_EQ(station.Active<textjob::frmEdit>().objectName(), "frmEdit");
  }
  WindowStation::Pump();
  EXPECT_EQ(frame.findChildren<textjob::frmEdit*>().size(), 1);
}

}  // namespace
}  // namespace morvane::test
