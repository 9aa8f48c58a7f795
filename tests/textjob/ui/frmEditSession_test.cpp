// A job with a line of every type, made from nothing in the window with keys and mouse, and sent. The file
// that it must become lies beside this test; it was written by hand.
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QTimer>
#include <fstream>
#include <sstream>

#include "support/qt_WindowStation.h"
#include "textjob/ui/frmEdit.h"
#include "widgets/grid/CellGrid.h"

namespace morvane::test {
namespace {

std::string ReadSource(const std::string& name) {
  std::ostringstream bytes;
  bytes << std::ifstream(MORVANE_SOURCE_DIR "/" + name, std::ios::binary).rdbuf();
  return bytes.str();
}

class EditSession : public ::testing::Test {
 protected:
  EditSession() {
    for (const char* name : {"FONT1.fnt", "FONT2.fnt", "LOGO.JOB", "PARK.JOB", "SHEET.PAN", "CODE.DM",
                             "FILL1.FIL", "A.PRE", "LOW.PRE", "PHOTO.RAS"}) {
      station.folder.Write(name, "");
    }
    station.folder.Write("Default.cap", "Cap one,1\r\nCap two,2\r\n");
    station.folder.Write("Default.sca", "Bottle,1\r\n");
    station.folder.Write("SIX.FIX", ReadSource("station/INDEX.FIX"));
    station.Set("Fixture", "SIX.FIX");
    station.Set("ViewFixture", "True");
    station.Set("ProFonts", "1");
    station.Set("ComPort", "5");
    station.Load();
    form = &station.Active<textjob::frmEdit>();
    grid = &Find<widgets::CellGrid>(*form, "PropertyGrid");
    station.Frame().activateWindow();
    WindowStation::Pump();
  }
  void Click(const char* name) {
    QTest::mouseClick(&Find<QAbstractButton>(*form, name), Qt::LeftButton);
    WindowStation::Pump();
  }
  int RowOf(const QString& label) {
    for (int row = 0; row < grid->RowCount(); ++row) {
      if (grid->CellText(row, 0) == label) return row;
    }
    ADD_FAILURE() << "no row " << label.toStdString();
    return -1;
  }
  // Goes to the row with the arrow keys and types the value, or goes to it in the list.
  void Enter(const QString& label, const QString& value) {
    // A list that drops down takes the activity with it on this platform.
    station.Frame().activateWindow();
    WindowStation::Pump();
    const int row = RowOf(label);
    grid->SetCurrentCell(0, 1, true);
    for (int rows = 0; rows < row; ++rows) QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
    ASSERT_EQ(grid->CurrentRow(), row) << label.toStdString();
    auto* list = qobject_cast<QComboBox*>(QApplication::focusWidget());
    if (list == nullptr) {
      QTest::keyClick(QApplication::focusWidget(), Qt::Key_A, Qt::ControlModifier);
      QTest::keyClicks(QApplication::focusWidget(), value);
    } else {
      ASSERT_GE(list->findText(value), 0) << value.toStdString();
      QTest::keyClick(list, Qt::Key_F4);
      list->view()->setCurrentIndex(list->model()->index(list->findText(value), 0));
      QTest::keyClick(list->view(), Qt::Key_Return);
    }
    WindowStation::Pump();
    EXPECT_EQ(grid->CellText(RowOf(label), 1), value) << label.toStdString();
  }
  // Rows as "label=value", with bars between them.
  void AddLine(const QString& type, const QString& rows) {
    Click("cmdNewLine");
    if (type != "Normal") Enter("Type", type);
    for (const QString& row : rows.split('|')) Enter(row.section('=', 0, 0), row.section('=', 1));
  }
  // Answers the next modal dialog.
  void InDialog(std::function<void(QDialog&)> act) {
    QTimer::singleShot(0, form, [act = std::move(act)] {
      auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
      ASSERT_NE(dialog, nullptr);
      act(*dialog);
    });
  }

  WindowStation station;
  textjob::frmEdit* form = nullptr;
  widgets::CellGrid* grid = nullptr;
};

TEST_F(EditSession, AllTypesFromNothingToTheMachine) {
  AddLine("Normal",
          "Text=Plate, A|Font=FONT2|Height=.25|Compress=.8|Justify=Center|X pos=1|Y "
          "pos=1.5|Side=2|Width=.2|Spacing=.05|Tool #=2|Depth=.01M.02");
  AddLine("Serial", "Serial=0042|Incr=5|Style=ArcText|Angle=45|Radius=2.5|X pos=2|Y pos=2");
  AddLine("Graphic", "Graphic=PARK|Compress=.5|X pos=3|Y pos=1|Tool #=3|Depth=0.1");
  AddLine("DateCode", "DateCode=YYYY-MM-DD|Style=Angular|Angle=30");
  AddLine("Move", "X pos=4|Y pos=.5");
  AddLine("Panel", "Panel=SHEET|X pos=1");
  AddLine("Data Matrix", "Data Matrix=CODE|Y pos=1");
  AddLine("Fill", "Fill=FILL1|Depth=M.5");
  AddLine("Variable", "Text=Lot|Prompt=Lot, please|Style=RadiusText|Angle=180|Radius=-1|Location=Inside");
  AddLine("Image", "Image=LOGO|Scale X=2|Scale Y=.5|Rotate=90");
  AddLine("Cap", "Cap=Cap two");
  AddLine("Scale", "Scale=Bottle");
  AddLine("Start Position", "X pos=.1|Y pos=.2|Depth=.3");
  AddLine("Closed Path",
          "Closed Path=PARK|Rotate=45|Late Start=.1|Late End=.2|Early Shut=.3|Overlap=.4|Overlap Ht=.5");
  AddLine("Pressure", "Pressure=LOW");
  AddLine("Park Path", "Park Path=PARK");
  AddLine("Raster", "Raster=PHOTO|Width=2|Height=1.5|Margin=.1|Backlash=.05|Keep Ratio=Yes");
  auto& comments = Find<QLineEdit>(*form, "txtComments");
  EXPECT_TRUE(comments.text().startsWith("Job created by Morvane on "));
  comments.selectAll();
  QTest::keyClicks(&comments, "All types");

  InDialog([](QDialog& reorder) {
    EXPECT_EQ(reorder.windowTitle(), "Reorder");
    auto& list = Find<QListWidget>(reorder, "List1");
    EXPECT_EQ(list.item(4)->text(), "MOVE  (4,0.5)");
    EXPECT_EQ(list.item(12)->text(), "START  (0.1,0.2)");
    list.setCurrentRow(16);
    QTest::mouseClick(&Find<QPushButton>(reorder, "cmdUp"), Qt::LeftButton);
    QTest::mouseClick(&Find<QPushButton>(reorder, "cmdExit"), Qt::LeftButton);
  });
  Click("cmdReorder");
  InDialog([](QDialog& offset) {
    EXPECT_EQ(offset.windowTitle(), "Offset TJB File");
    for (const auto& [name, text] : {std::pair{"labXOffset", "&X Offset (in)"},
                                     {"labYOffset", "&Y Offset (in)"},
                                     {"labDepthOffset", "&Depth Offset (in)"}}) {
      EXPECT_EQ(Find<QLabel>(offset, name).text(), text);
    }
    auto& byObject = Find<QCheckBox>(offset, "chkOffsetyByObject");
    EXPECT_TRUE(byObject.text() == "Offset &by Object" && !byObject.isVisible());
    const std::pair<const char*, const char*> fields[] = {
        {"txtXOffset", "1"}, {"txtYOffset", "-.5"}, {"txtDepthOffset", ".001"}};
    for (const auto& [name, value] : fields) {
      auto& field = Find<QLineEdit>(offset, name);
      field.selectAll();
      QTest::keyClicks(&field, value);
    }
    QTest::mouseClick(&Find<QPushButton>(offset, "cmdOk"), Qt::LeftButton);
  });
  station.Entry("mnuFileOffset").trigger();

  station.prompts.files.push_back({station.folder / "SESSION.TJB"});
  Click("cmdSave");
  const std::string expected = ReadSource("tests/textjob/ui/SESSION.TJB");
  EXPECT_EQ(station.folder.Read("SESSION.TJB"), expected);

  Click("cmdDownload");
  EXPECT_EQ(station.prompts.Texts().back(), "Download Complete");
  EXPECT_NE(station.controller.wire.find("QT7250DFILE SESSION.TJB\r\n" + expected + "ENDFILE"),
            std::string::npos);

  // Everything back, to nothing.
  station.Frame().activateWindow();
  WindowStation::Pump();
  for (int steps = 0; Find<QAbstractButton>(*form, "cmdUndo").isEnabled(); ++steps) {
    ASSERT_LT(steps, 200);
    QTest::keyClick(&comments, Qt::Key_Z, Qt::ControlModifier);
  }
  EXPECT_EQ(station.job.LineCount(), 0U);
  EXPECT_EQ(station.job.Comment, "");
}

}  // namespace
}  // namespace morvane::test
