#include "widgets/frmOffset.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "support/qt_WindowStation.h"

namespace morvane::test {
namespace {

TEST(frmOffset, AsksForWhatItsCallerNeeds) {
  WindowStation station;
  station.Set("Units", "mm");
  const struct {
    widgets::OffsetRequest request;
    const char* texts;
  } cases[] = {{{"Offset TJB File", true, false}, "1.5,0,-2"},
               {{"Offset Pallet File", false, false, "", "x"}, "1.5,x,0"},
               {{"Offset Job File", false, true, "-1.000", "2"}, "1.5,2,0"}};
  for (const auto& [request, texts] : cases) {
    widgets::frmOffset form(request, station.settings);
    form.show();
    EXPECT_EQ(form.windowTitle(), request.title);
    EXPECT_EQ(Find<QLabel>(form, "labXOffset").text(), "&X Offset (mm)");
    EXPECT_EQ(Find<QLabel>(form, "labYOffset").text(), "&Y Offset (mm)");
    EXPECT_EQ(Find<QLabel>(form, "labDepthOffset").text(), "&Depth Offset (mm)");
    auto& depth = Find<QLineEdit>(form, "txtDepthOffset");
    auto& byObject = Find<QCheckBox>(form, "chkOffsetyByObject");
    EXPECT_EQ(byObject.text(), "Offset &by Object");
    EXPECT_EQ(depth.isVisible(), request.depth);
    EXPECT_EQ(byObject.isVisible(), request.byObject);
    auto& x = Find<QLineEdit>(form, "txtXOffset");
    EXPECT_EQ(x.text().toStdString(), request.x);
    QTest::keyClicks(&x, "1.5");
    if (request.depth) depth.setText("-2");
    if (request.byObject) byObject.click();
    QTest::keyClick(&x, Qt::Key_Return);
    EXPECT_EQ(form.result(), QDialog::Accepted);
    const widgets::OffsetTexts found = form.Texts();
    EXPECT_EQ(found.x + "," + found.y + "," + found.depth, texts);
    EXPECT_EQ(found.byObject, request.byObject);
  }
}

}  // namespace
}  // namespace morvane::test
