#include "widgets/frmOffset.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>

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
               {{"Offset Job File", false, true, "-1.000", "2"}, "1.5,2,0"}};
  for (const auto& [request, texts] : cases) {
    widgets::frmOffset form(request, station.settings);
    form.show();
    EXPECT_EQ(form.windowTitle(), request.title);
    for (const auto& [name, text] : {std::pair{"labXOffset", "&X Offset (mm)"},
                                     {"labYOffset", "&Y Offset (mm)"},
                                     {"labDepthOffset", "&Depth Offset (mm)"}}) {
      EXPECT_EQ(Find<QLabel>(form, name).text(), text);
    }
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
    const auto [foundX, foundY, foundDepth, foundByObject] = form.Texts();
    EXPECT_EQ(foundX + "," + foundY + "," + foundDepth, texts);
    EXPECT_EQ(foundByObject, request.byObject);
  }
}

}  // namespace
}  // namespace morvane::test
