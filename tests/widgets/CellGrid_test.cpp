#include "widgets/CellGrid.h"

#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QComboBox>
#include <QDoubleValidator>
#include <QLineEdit>
#include <QTest>
#include <QToolButton>
#include <QVBoxLayout>
#include <utility>

#include "common/Numbers.h"
#include "support/qt_WindowStation.h"

namespace morvane::test {
namespace {

using widgets::CellEditor;
using widgets::EditorKind;

constexpr int kText = 0, kType = 1, kDpi = 2, kX = 3, kFile = 4;

// A grid between two fields, and an owner who takes every edit in and then fills the grid anew.
class CellGridTest : public ::testing::Test {
 protected:
  CellGridTest() {
    auto* layout = new QVBoxLayout(&window_);
    for (QWidget* widget :
         {static_cast<QWidget*>(&before_), static_cast<QWidget*>(&grid_), static_cast<QWidget*>(&after_)}) {
      layout->addWidget(widget);
    }
    grid_.SetEditorChooser([this](int row, int column) { return Editor(row, column); });
    grid_.SetRows(rows_);
    QObject::connect(&grid_, &widgets::CellGrid::CellEdited,
                     [this](int row, int column, const QString& text) {
                       told_ << QString("%1=%2").arg(rows_[std::size_t(row)][0], text);
                       grid_.SetRows(rows_);  // a pass that was under way shows what it began with
                       rows_[std::size_t(row)][std::size_t(column)] = row == kX ? Number(text) : text;
                       grid_.SetRows(rows_);
                     });
    QObject::connect(&grid_, &widgets::CellGrid::CurrentCellMoved,
                     [this](int row, int column) { told_ << QString("at %1,%2").arg(row).arg(column); });
    QObject::connect(&grid_, &widgets::CellGrid::StepRequested,
                     [this](int, int, int steps) { told_ << QString("step %1").arg(steps); });
    QObject::connect(&grid_, &widgets::CellGrid::ButtonPressed,
                     [this](int row, int) { told_ << QString("button %1").arg(row); });
    window_.resize(300, 400);
    window_.show();
    window_.activateWindow();
    WindowStation::Pump();
  }
  static QString Number(const QString& text) {
    const double value = common::ParseNumber(text.toStdString());
    return QString::fromStdString(common::FormatPicture(value, "0.000"));
  }
  static CellEditor Editor(int row, int) {
    if (row == kType) return {EditorKind::List, {"Normal", "Serial", QString(60, 'W')}};
    if (row == kDpi) return {};
    if (row == kFile) return {EditorKind::ListWithButton, {"OTHER", "PART"}};
    return {EditorKind::Text, {}};
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
  void Wheel(int row, int delta) {
    const QPointF at = grid_.visualRect(grid_.model()->index(row, 1)).center();
    QWheelEvent event(at, grid_.viewport()->mapToGlobal(at), {}, {0, delta}, Qt::NoButton, Qt::NoModifier,
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
  widgets::CellGrid grid_;
};

TEST_F(CellGridTest, KeysInTheGridChangeTheValue) {
  const struct {
    int row, key;
    Qt::KeyboardModifiers modifiers;
    const char *text, *told, *value;
  } keys[] = {{kText, Qt::Key_D, Qt::ShiftModifier, "D", "Text=ABCD", "ABCD"},
              {kText, Qt::Key_Space, {}, " ", "Text=ABCD ", "ABCD "},
              {kText, Qt::Key_At, Qt::ControlModifier | Qt::AltModifier, "@", "Text=ABCD @", "ABCD @"},
              {kText, Qt::Key_Escape, {}, "\x1b", "Text=ABC", "ABC"},
              {kText, Qt::Key_Escape, {}, "\x1b", "", "ABC"},
              {kText, Qt::Key_Z, Qt::ControlModifier, "\x1a", "", "ABC"},
              {kText, Qt::Key_C, Qt::ControlModifier, "\x03", "", "ABC"},
              {kText, Qt::Key_O, Qt::AltModifier, "o", "", "ABC"},
              {kText, Qt::Key_Delete, {}, "\x7f", "", "ABC"},
              {kText, Qt::Key_Down, {}, "", "at 1,1", "Normal"},
              {kDpi, Qt::Key_5, {}, "5", "", "300"},
              {kDpi, Qt::Key_Backspace, {}, "\b", "", "300"},
              // What is typed stands, although the owner knows the number in its own form.
              {kX, Qt::Key_Backspace, {}, "\b", "X=1.00", "1.00"},
              {kX, Qt::Key_Backspace, {}, "\b", "X=1.0", "1.0"},
              {kX, Qt::Key_5, {}, "5", "X=1.05", "1.05"},
              {kX, Qt::Key_Up, Qt::ControlModifier, "", "step 1", "1.05"},
              {kX, Qt::Key_Left, {}, "", "", "1.05"}};
  for (const auto& key : keys) {
    if (grid_.CurrentRow() != key.row) Go(key.row, false);
    QKeyEvent event(QEvent::KeyPress, key.key, key.modifiers, key.text);
    QCoreApplication::sendEvent(&grid_, &event);
    EXPECT_EQ(Told(), key.told);
    EXPECT_EQ(Value(), key.value);
    EXPECT_EQ(event.isAccepted(), key.told[0] != '\0') << key.key;
  }
  EXPECT_EQ(rows_[kX][1], "1.050");
  QTest::keyClick(&grid_, Qt::Key_Up);
  EXPECT_EQ(grid_.CellText(kX, 1), "1.050");
}

TEST_F(CellGridTest, AnOpenEditorOutlivesNewRows) {
  Go(kX, true);
  EXPECT_EQ(Text().selectedText(), "1.000");
  EXPECT_EQ(Text().accessibleName(), "X");
  QTest::keyClicks(&Text(), "2.5");
  EXPECT_EQ(Told(), "X=2 X=2. X=2.5");
  EXPECT_EQ(rows_[kX][1], "2.500");
  Text().setCursorPosition(1);
  rows_.insert(rows_.begin(), {"Prompt", "?"});
  grid_.SetRows(rows_);
  EXPECT_EQ(grid_.CurrentRow(), kX + 1);
  EXPECT_EQ(Focus(), &Text());
  EXPECT_EQ(Text().text(), "2.5");
  EXPECT_EQ(Text().cursorPosition(), 1);
  EXPECT_EQ(Text().geometry(), grid_.visualRect(grid_.currentIndex()));
  // A value that changed otherwise is shown.
  rows_[kX + 1][1] = "7.000";
  grid_.SetRows(rows_);
  EXPECT_EQ(Text().text(), "7.000");
  EXPECT_EQ(Text().cursorPosition(), 1);
  grid_.SetCellText(kX + 1, 1, "8");
  EXPECT_EQ(Text().text(), "8");
  EXPECT_EQ(Told(), "");
  rows_.resize(3);
  grid_.SetRows(rows_);
  EXPECT_FALSE(grid_.EditorOpen());
  EXPECT_EQ(Focus(), &grid_);
  EXPECT_EQ(grid_.CurrentRow(), 2);
  grid_.SetRows({});
  grid_.OpenEditor();
  QTest::keyClicks(&grid_, "a\b\r");
  EXPECT_EQ(Told(), "");
}

TEST_F(CellGridTest, EscapeBringsBackWhatTheCellHeldWhenItWasEntered) {
  Go(kX, true);
  QTest::keyClicks(&Text(), "9");
  QTest::keyClick(&Text(), Qt::Key_Escape);
  EXPECT_EQ(Told(), "X=9 X=1.000");
  EXPECT_FALSE(grid_.EditorOpen());
  EXPECT_EQ(Focus(), &grid_);
  // Closing alone changes nothing, and another thing's value is not brought back.
  grid_.OpenEditor();
  QTest::keyClicks(&Text(), "4");
  grid_.CloseEditor();
  EXPECT_EQ(Value(), "4.000");
  grid_.StartOver();
  rows_[kX][1] = "6.000";
  grid_.SetRows(rows_);
  Told();
  QTest::keyClicks(&grid_, "1\x1b");
  EXPECT_EQ(Told(), "X=6.0001 X=6.000");
}

TEST_F(CellGridTest, KeysGoThroughTheRowsAndOut) {
  Go(kText, true);
  const struct {
    int key;
    const char* told;
    const char* focus;
  } steps[] = {{Qt::Key_Up, "", "txtSelect"},
               {Qt::Key_Down, "at 1,1", "cmbSelect"},
               {Qt::Key_Backspace, "", "cmbSelect"},
               {Qt::Key_Down, "at 2,1", "grid"},
               {Qt::Key_Down, "at 3,1", "txtSelect"},
               {Qt::Key_Up, "at 2,1", "grid"},
               {Qt::Key_Up, "at 1,1", "cmbSelect"},
               {Qt::Key_Return, "at 3,1", "txtSelect"},
               {Qt::Key_Enter, "at 4,1", "cmbSelectJob"},
               {Qt::Key_Return, "", "grid"},
               {Qt::Key_Return, "", "cmbSelectJob"},
               {Qt::Key_Escape, "", "grid"},
               {Qt::Key_F2, "", "cmbSelectJob"},
               {Qt::Key_Tab, "", "after"},
               {Qt::Key_Backtab, "", "grid"},
               {Qt::Key_Return, "", "cmbSelectJob"},
               {Qt::Key_Backtab, "", "before"}};
  grid_.setObjectName("grid");
  before_.setObjectName("before");
  after_.setObjectName("after");
  for (const auto& step : steps) {
    QTest::keyClick(Focus(), Qt::Key(step.key));
    EXPECT_EQ(Told(), step.told);
    EXPECT_EQ(Focus()->objectName(), step.focus) << step.key;
    EXPECT_EQ(grid_.EditorOpen(), QString(step.focus).contains("Select"));
  }
  // A table with several values goes on to the next one.
  grid_.SetEditorChooser(nullptr);
  grid_.SetHeaders({"Tool #", "Load", "Unload"});
  grid_.SetRows({{"1", "a", "b"}, {"2", "c"}});
  grid_.SetCurrentCell(0, 1, true);
  for (const char* value : {"b", "c", ""}) {
    QTest::keyClick(Focus(), Qt::Key_Tab);
    EXPECT_EQ(Text().text(), value);
  }
  QTest::keyClick(Focus(), Qt::Key_Tab);
  EXPECT_EQ(Focus(), &after_);
}

TEST_F(CellGridTest, AClickOpensTheEditorAndLeavingClosesIt) {
  const auto click = [&](int row, int column) {
    QTest::mouseClick(grid_.viewport(), Qt::LeftButton, {},
                      grid_.visualRect(grid_.model()->index(row, column)).center());
  };
  click(kX, 0);
  EXPECT_EQ(Told(), "at 3,1");
  EXPECT_EQ(Focus(), &Text());
  click(kText, 1);
  EXPECT_EQ(Told(), "at 0,1");
  EXPECT_EQ(Text().text(), "ABC");
  click(kDpi, 1);
  EXPECT_EQ(Focus(), &grid_);
  click(kText, 1);
  after_.setFocus();
  EXPECT_FALSE(grid_.EditorOpen());
  EXPECT_EQ(Focus(), &after_);
  // Undo is the window's when the text box has none.
  grid_.OpenEditor();
  for (const bool own : {false, true}) {
    QKeyEvent undo(QEvent::ShortcutOverride, Qt::Key_Z, Qt::ControlModifier);
    undo.ignore();
    QCoreApplication::sendEvent(&Text(), &undo);
    EXPECT_EQ(undo.isAccepted(), own);
    QTest::keyClicks(&Text(), "x");
  }
}

TEST_F(CellGridTest, ListsOfferTheirChoicesInFull) {
  Go(kType, true);
  auto& list = Find<QComboBox>(grid_, "cmbSelect");
  EXPECT_EQ(list.currentText(), "Normal");
  EXPECT_GT(list.view()->minimumWidth(), list.fontMetrics().horizontalAdvance(QString(60, 'W')));
  QTest::keyClicks(&list, "S");
  EXPECT_EQ(Told(), "Type=Serial");
  QWheelEvent wheel({5, 5}, list.mapToGlobal(QPointF(5, 5)), {}, {0, -120}, Qt::NoButton, Qt::NoModifier,
                    Qt::NoScrollPhase, false);
  QCoreApplication::sendEvent(&list, &wheel);
  EXPECT_EQ(list.currentText(), "Serial");
  // A value that is no choice is shown, and not told.
  rows_[kType][1] = "Other";
  grid_.SetRows(rows_);
  EXPECT_EQ(list.currentText(), "Other");
  Go(kFile, true);
  Find<QToolButton>(grid_, "cmdSelectJob").click();
  EXPECT_EQ(Told(), "button 4");
  EXPECT_EQ(Find<QToolButton>(grid_, "cmdSelectJob").toolTip(), "Open this file");
  QTest::keyClicks(&Find<QComboBox>(grid_, "cmbSelectJob"), "o");
  EXPECT_EQ(Told(), "File=OTHER");
}

TEST_F(CellGridTest, TheWheelStepsTheCurrentValueAndScrollsElsewhere) {
  Go(kX, true);
  Wheel(kX, 120);
  Wheel(kX, -60);
  EXPECT_EQ(Told(), "step 1");
  Wheel(kX, -240);
  EXPECT_EQ(Told(), "step -2");
  Wheel(kText, 120);
  after_.setFocus();
  Wheel(kX, 120);
  EXPECT_EQ(Told(), "");
  // The editor goes along.
  for (int i = 0; i < 40; ++i) rows_.push_back({QString("Row %1").arg(i), ""});
  grid_.SetRows(rows_);
  grid_.OpenEditor();
  const int top = Text().y();
  Wheel(kText, -120);
  EXPECT_LT(Text().y(), top);
  EXPECT_EQ(Text().geometry(), grid_.visualRect(grid_.currentIndex()));
  window_.resize(500, 400);
  EXPECT_EQ(Text().geometry(), grid_.visualRect(grid_.currentIndex()));
  QFont font = window_.font();
  font.setPointSize(30);
  window_.setFont(font);
  WindowStation::Pump();
  EXPECT_EQ(Text().geometry(), grid_.visualRect(grid_.currentIndex()));
  EXPECT_GT(Text().height(), QFontMetrics(font).height());
}

TEST_F(CellGridTest, InputMethodsTypeIntoTheGrid) {
  Go(kText, false);
  EXPECT_TRUE(grid_.testAttribute(Qt::WA_InputMethodEnabled));
  Compose({}, "\u00EA");
  EXPECT_EQ(Told(), QString("Text=ABC\u00EA"));
  Compose("ni", {});
  Compose("nih", {});
  EXPECT_EQ(Value(), QString("ABC\u00EAnih"));
  EXPECT_EQ(Told(), "") << "not before it is finished";
  Compose({}, "x");
  EXPECT_EQ(Told(), QString("Text=ABC\u00EAx"));
  Go(kDpi, false);
  Compose({}, "5");
  EXPECT_EQ(Value(), "300");
  // The validator of the text box holds for keys in the grid.
  QDoubleValidator digits;
  grid_.Editors().TextBox().setValidator(&digits);
  Go(kX, false);
  QTest::keyClicks(&grid_, "a2");
  EXPECT_EQ(Told(), "X=1.0002");
}

}  // namespace
}  // namespace morvane::test
