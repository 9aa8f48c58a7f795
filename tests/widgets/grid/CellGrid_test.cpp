#include "widgets/grid/CellGrid.h"

#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QComboBox>
#include <QLineEdit>
#include <QTest>
#include <QToolButton>
#include <QVBoxLayout>
#include <utility>

#include "common/text/Numbers.h"
#include "support/qt_WindowStation.h"

namespace morvane::test {
namespace {

using widgets::CellEditor;
using widgets::CellGrid;
using widgets::EditorKind;

constexpr int kText = 0, kType = 1, kDpi = 2, kX = 3, kFile = 4;

// A grid between two fields, and an owner who takes every edit in and then fills the grid anew.
class CellGridTest : public ::testing::Test {
 protected:
  CellGridTest() {
    auto* layout = new QVBoxLayout(&window_);
    const std::pair<QWidget*, const char*> fields[] = {
        {&before_, "before"}, {&grid_, "grid"}, {&after_, "after"}};
    for (const auto& [field, name] : fields) {
      field->setObjectName(name);
      layout->addWidget(field);
    }
    grid_.SetEditorChooser(Editor);
    grid_.SetRows(rows_);
    QObject::connect(&grid_, &CellGrid::CellEdited, [this](int row, int, const QString& text) {
      told_ << QString("%1=%2").arg(grid_.CellText(row, 0), text);
      grid_.SetRows(rows_);  // a pass that was under way shows what it began with
      QString& value = rows_[std::size_t(row)][1];
      value = grid_.CellText(row, 0) == "X" ? Number(text) : text;
      grid_.SetRows(rows_);
    });
    const auto tell = [this](const char* what) {
      return [this, what](int row, int) { told_ << QString(what).arg(row); };
    };
    QObject::connect(&grid_, &CellGrid::CurrentCellMoved, tell("at %1"));
    QObject::connect(&grid_, &CellGrid::ButtonPressed, tell("open %1"));
    QObject::connect(&grid_, &CellGrid::StepRequested,
                     [this](int, int, int steps) { told_ << QString("step %1").arg(steps); });
    window_.resize(300, 400);
    window_.show();
    window_.activateWindow();
    WindowStation::Pump();
  }
  static QString Number(const QString& text) {
    return QString::fromStdString(common::FormatPicture(common::ParseNumber(text.toStdString()), "0.000"));
  }
  static CellEditor Editor(int row, int) {
    if (row == kType) return {EditorKind::List, {"Normal", "Serial", QString(60, 'W')}};
    if (row == kFile) return {EditorKind::ListWithButton, {"OTHER", "PART"}};
    return {row == kDpi ? EditorKind::None : EditorKind::Text, {}};
  }
  // What was told since the last question.
  QString Told() { return std::exchange(told_, {}).join(' '); }
  // Puts the focus into the grid itself, or into the editor of the row.
  void Go(int row, bool edit) {
    grid_.setFocus();
    grid_.SetCurrentCell(row, 1, edit);
    told_.clear();
  }
  QString Value() const { return grid_.CellText(grid_.CurrentRow(), grid_.CurrentColumn()); }
  QWidget* Focus() const { return window_.focusWidget(); }
  QLineEdit& Text() { return Find<QLineEdit>(grid_, "txtSelect"); }
  QRect Cell() const { return grid_.visualRect(grid_.currentIndex()); }
  QPoint Middle(int row, int column) const {
    return grid_.visualRect(grid_.model()->index(row, column)).center();
  }
  void Wheel(int row, int delta) {
    const QPointF at = Middle(row, 1);
    QWheelEvent event(at, grid_.mapToGlobal(at), {}, {0, delta}, Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(grid_.viewport(), &event);
  }
  void Compose(const QString& preedit, const QString& commit) {
    QInputMethodEvent event(preedit, {});
    event.setCommitString(commit);
    QCoreApplication::sendEvent(&grid_, &event);
  }

  widgets::CellModel::Rows rows_{
      {"Text", "ABC"}, {"Type", "Normal"}, {"DPI", "300"}, {"X", "1.000"}, {"File", "PART"}};
  QStringList told_;
  QWidget window_;
  QLineEdit before_, after_;
  CellGrid grid_;
};

TEST_F(CellGridTest, KeysInTheGridChangeTheValue) {
  const struct {
    int row, key;
    Qt::KeyboardModifiers modifiers;
    const char *text, *told, *value;
  } keys[] = {{kText, Qt::Key_Space, {}, " ", "Text=ABC ", "ABC "},
              {kText, Qt::Key_At, Qt::ControlModifier | Qt::AltModifier, "@", "Text=ABC @", "ABC @"},
              {kText, Qt::Key_Escape, {}, "\x1b", "Text=ABC", "ABC"},
              {kText, Qt::Key_Z, Qt::ControlModifier, "\x1a", "", "ABC"},
              {kText, Qt::Key_O, Qt::AltModifier, "o", "", "ABC"},
              {kDpi, Qt::Key_5, {}, "5", "", "300"},
              {kDpi, Qt::Key_Backspace, {}, "\b", "", "300"},
              // What is typed stands, although the owner knows the number in its own form.
              {kX, Qt::Key_Backspace, {}, "\b", "X=1.00", "1.00"},
              {kX, Qt::Key_5, {}, "5", "X=1.005", "1.005"},
              {kX, Qt::Key_Up, Qt::ControlModifier, "", "step 1", "1.005"},
              {kX, Qt::Key_Backspace, {}, "\b", "X=1.00", "1.00"},
              {kX, Qt::Key_Down, {}, "", "at 4", "PART"}};
  for (const auto& key : keys) {
    if (grid_.CurrentRow() != key.row) Go(key.row, false);
    QKeyEvent event(QEvent::KeyPress, key.key, key.modifiers, key.text);
    QCoreApplication::sendEvent(&grid_, &event);
    EXPECT_EQ(Told(), key.told);
    EXPECT_EQ(Value(), key.value);
    EXPECT_EQ(event.isAccepted(), key.told[0] != '\0') << key.key;
  }
  EXPECT_EQ(grid_.CellText(kX, 1), "1.000");
}

TEST_F(CellGridTest, AnOpenEditorOutlivesNewRows) {
  Go(kX, true);
  EXPECT_EQ(Text().selectedText(), "1.000");
  QTest::keyClicks(&Text(), "2.5");
  EXPECT_EQ(Told(), "X=2 X=2. X=2.5");
  Text().setCursorPosition(1);
  rows_.insert(rows_.begin(), {"Prompt", "?"});
  grid_.SetRows(rows_);
  EXPECT_EQ(grid_.CurrentRow(), kX + 1);
  EXPECT_EQ(Focus(), &Text());
  EXPECT_EQ(Text().text(), "2.5");
  EXPECT_EQ(Text().cursorPosition(), 1);
  EXPECT_EQ(Text().geometry(), Cell());
  // A value that changed otherwise is shown.
  rows_[kX + 1][1] = "7.000";
  grid_.SetRows(rows_);
  EXPECT_EQ(Text().text(), "7.000");
  EXPECT_EQ(Text().cursorPosition(), 1);
  rows_[kX + 1] = {"Y", "9"};
  grid_.SetRows(rows_);
  EXPECT_FALSE(grid_.EditorOpen());
  EXPECT_EQ(Focus(), &grid_);
  EXPECT_EQ(Value(), "9");
}

TEST_F(CellGridTest, EscapeBringsBackWhatTheCellHeldWhenItWasEntered) {
  Go(kX, true);
  QTest::keyClicks(&Text(), "9\x1b");
  EXPECT_EQ(Told(), "X=9 X=1.000");
  EXPECT_EQ(Focus(), &grid_);
  // Another thing's value is not brought back.
  grid_.StartOver();
  rows_[kX][1] = "6.000";
  grid_.SetRows(rows_);
  Told();
  QTest::keyClicks(&grid_, "1\x1b");
  EXPECT_EQ(Told(), "X=6.0001 X=6.000");
}

TEST_F(CellGridTest, KeysGoThroughTheRowsAndOut) {
  Go(kText, true);
  const std::tuple<Qt::Key, const char*, const char*> steps[] = {
      {Qt::Key_Up, "", "txtSelect"},           {Qt::Key_Down, "at 1", "cmbSelect"},
      {Qt::Key_Backspace, "", "cmbSelect"},    {Qt::Key_Down, "at 2", "grid"},
      {Qt::Key_Up, "at 1", "cmbSelect"},       {Qt::Key_Return, "at 3", "txtSelect"},
      {Qt::Key_Enter, "at 4", "cmbSelectJob"}, {Qt::Key_Return, "", "grid"},
      {Qt::Key_Return, "", "cmbSelectJob"},    {Qt::Key_Tab, "", "after"},
      {Qt::Key_Backtab, "", "grid"},           {Qt::Key_F2, "", "cmbSelectJob"},
      {Qt::Key_Backtab, "", "before"}};
  for (const auto& [key, told, focus] : steps) {
    QTest::keyClick(Focus(), key);
    EXPECT_EQ(Told(), told);
    EXPECT_EQ(Focus()->objectName(), focus) << key;
    EXPECT_EQ(grid_.EditorOpen(), QString(focus).contains("Select"));
  }
  // A table with several values goes on to the next one.
  grid_.SetEditorChooser(nullptr);
  grid_.SetHeaders({"Tool #", "Load", "Unload"});
  grid_.SetRows({{"1", "a", "b"}, {"2", "c"}});
  grid_.SetCurrentCell(0, 2, true);
  QTest::keyClick(Focus(), Qt::Key_Tab);
  EXPECT_EQ(Text().text(), "c");
}

TEST_F(CellGridTest, ListsOfferTheirChoicesInFull) {
  Go(kType, true);
  auto& list = Find<QComboBox>(grid_, "cmbSelect");
  EXPECT_EQ(list.currentText(), "Normal");
  EXPECT_GT(list.view()->minimumWidth(), list.fontMetrics().horizontalAdvance(QString(60, 'W')));
  QTest::keyClicks(&list, "S");
  EXPECT_EQ(Told(), "Type=Serial");
  // A value that is no choice is shown, and not told.
  rows_[kType][1] = "Other";
  grid_.SetRows(rows_);
  EXPECT_EQ(list.currentText(), "Other");
  list.showPopup();
  WindowStation::Pump();
  QTest::keyClick(list.view(), Qt::Key_Home);
  QTest::keyClick(list.view(), Qt::Key_Return);
  EXPECT_EQ(Told(), "Type=Normal");
  Go(kFile, true);
  auto& button = Find<QToolButton>(grid_, "cmdSelectJob");
  EXPECT_EQ(button.toolTip(), "Open this file");
  button.click();
  QTest::keyClicks(&Find<QComboBox>(grid_, "cmbSelectJob"), "o");
  EXPECT_EQ(Told(), "open 4 File=OTHER");
}

TEST_F(CellGridTest, TheWheelStepsTheCurrentValueAndScrollsElsewhere) {
  Go(kX, true);
  for (const int delta : {120, -60, -300}) Wheel(kX, delta);
  Wheel(kText, 120);
  EXPECT_EQ(Told(), "step 1 step -3");
  after_.setFocus();
  Wheel(kX, 120);
  EXPECT_EQ(Told(), "") << "nobody edits here";
}

TEST_F(CellGridTest, InputMethodsTypeIntoTheGrid) {
  Go(kText, false);
  Compose({}, "\u00EA");
  EXPECT_EQ(Told(), QString("Text=ABC\u00EA"));
  Compose("nih", {});
  EXPECT_EQ(Value(), QString("ABC\u00EAnih"));
  EXPECT_EQ(Told(), "") << "not before it is finished";
  Compose({}, "x");
  EXPECT_EQ(Told(), QString("Text=ABC\u00EAx"));
}

TEST_F(CellGridTest, ALongValueStaysInTheView) {
  grid_.SetRows({});
  rows_[kText][1] = QString(300, 'W');
  grid_.SetRows(rows_);
  WindowStation::Pump();
  EXPECT_LE(grid_.visualRect(grid_.model()->index(kText, 1)).right(), grid_.viewport()->width());
}

}  // namespace
}  // namespace morvane::test
