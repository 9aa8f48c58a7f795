#include "fonts/ui/frmFontView.h"

#include <QScrollBar>

#include "support/qt_Pixels.h"
#include "support/qt_WindowStation.h"
#include "widgets/canvas/CanvasView.h"

namespace morvane::test {
namespace {

class frmFontViewTest : public ::testing::Test {
 protected:
  frmFontViewTest() {
    std::string font;
    for (int code = 1; code <= 255; ++code) {
      font += code == 65 ? "65:0,0,1,1;1,1,0,1" : code == 66 ? "99:0,0,1,1" : std::to_string(code) + ":";
      font += "\r\n";
    }
    station.folder.Write("GOOD.fnt", font);
    station.Load();
    station.Entry("mnuFontView").trigger();
  }
  fonts::frmFontView& Form() { return station.Active<fonts::frmFontView>(); }
  QString Text(const char* name) { return Find<QLabel>(Form(), name).text(); }
  QString Character() { return Find<QLineEdit>(Form(), "txtChar").text(); }
  QWidget& Picture() { return Find<widgets::CanvasView>(Form(), "pic"); }
  void Press(Qt::Key key, int times = 1) {
    while (times-- > 0) QTest::keyClick(Form().focusWidget() ? Form().focusWidget() : &Form(), key);
  }

  WindowStation station;
};

TEST_F(frmFontViewTest, ShowsOneCharacterAfterTheOther) {
  station.prompts.files.push_back({station.folder / "GOOD.fnt"});
  Find<QPushButton>(Form(), "cmdOpen").click();
  EXPECT_EQ(station.prompts.requests.at(0).filter, "Font Files|*.fnt|All Files|*.*");
  EXPECT_EQ(Find<QLineEdit>(Form(), "txtJob").text(), "GOOD.fnt");
  EXPECT_EQ(Character(), "A (65)");
  EXPECT_EQ(Text("lblSegments"), "Line Segments: 2");
  EXPECT_GT(CountPixels(Picture(), Qt::red), 100);
  const int thin = CountPixels(Picture(), Qt::black);
  Find<QScrollBar>(Form(), "HScroll1").setValue(8);
  EXPECT_GT(CountPixels(Picture(), Qt::black), 3 * thin);
  Press(Qt::Key_PageDown);
  EXPECT_EQ(Character(), "B (66)");
  EXPECT_EQ(Text("lblError"), "Character Number Error");
  EXPECT_EQ(CountPixels(Picture(), Qt::red) + CountPixels(Picture(), Qt::black), 0) << "nothing is drawn";
  Find<QPushButton>(Form(), "cmdNext").click();
  EXPECT_EQ(Character(), "C (67)");
  EXPECT_EQ(Text("lblError"), "");
  Press(Qt::Key_PageUp, 70);
  EXPECT_EQ(Character(), QString(QChar(1)) + " (1)");
  Press(Qt::Key_PageDown, 300);
  Find<QPushButton>(Form(), "cmdPrev").click();
  EXPECT_EQ(Character(), QString::fromUtf8("\u00FE (254)"));
}

}  // namespace
}  // namespace morvane::test
