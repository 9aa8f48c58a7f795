#include "widgets/canvas/CanvasView.h"

#include <gtest/gtest.h>

#include <QRubberBand>
#include <QTest>
#include <utility>

#include "common/files/Files.h"
#include "platform/posix/PosixFileSystem.h"
#include "platform/qt/PictureStore.h"
#include "support/qt_Pixels.h"
#include "support/qt_WindowStation.h"
#include "widgets/canvas/FitView.h"

namespace morvane::test {
namespace {

class CanvasViewTest : public ::testing::Test {
 protected:
  CanvasViewTest() {
    view_.resize(400, 200);
    view_.SetPictures(&pictures_);
    view_.SetBackground(Qt::black);
    view_.SetDrawing({[this](platform::Canvas& canvas) {
                        ++painted_;
                        canvas.Box({4, 2, 1, 1}, 255, true);
                      },
                      {0, 0, 8, 4}});
    view_.show();
    WindowStation::Pump();
  }
  static void ExpectNear(const QPointF& found, const QPointF& wanted) {
    EXPECT_NEAR(found.x(), wanted.x(), 1e-3);
    EXPECT_NEAR(found.y(), wanted.y(), 1e-3);
  }
  void Wheel(const QPointF& at, int delta) {
    QWheelEvent event(at, view_.mapToGlobal(at), QPoint(), QPoint(0, delta), Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&view_, &event);
  }

  TempFolder folder_;
  platform::PosixFileSystem fileSystem_;
  common::Files files_{fileSystem_, folder_.Path()};
  platform::PictureStore pictures_{files_};
  widgets::CanvasView view_;
  int painted_ = 0;
};

TEST_F(CanvasViewTest, TheWheelZoomsAtThePointerAndKeysFitAgain) {
  const QPointF at(230, 130);
  const QPointF world = view_.ToWorld(at);
  ExpectNear(world, {4.6, 2.6});
  for (const int delta : {120, 360, -120, 1200}) {
    Wheel(at, delta);
    ExpectNear(view_.ToWorld(at), world);
    ExpectNear(view_.FromWorld(world), at);
  }
  EXPECT_GT(view_.Zoom(), 10);
  EXPECT_EQ(CountPixels(view_, Qt::red, {1, 1, 398, 198}), 398 * 198) << "the box fills the view";
  view_.Fit();
  for (const auto& [key, modifier] : {std::pair{Qt::Key_F, Qt::NoModifier},
                                      {Qt::Key_Home, Qt::NoModifier},
                                      {Qt::Key_0, Qt::ControlModifier}}) {
    QTest::keyClick(&view_, Qt::Key_Plus);
    QTest::keyClick(&view_, Qt::Key_Left);
    EXPECT_EQ(view_.Zoom(), 1.25);
    QTest::keyClick(&view_, key, modifier);
    EXPECT_EQ(view_.Zoom(), 1);
    ExpectNear(view_.ToWorld({0, 0}), {0, 0});
  }
}

TEST_F(CanvasViewTest, ADragSpansARectangleAndAClickStaysAClick) {
  view_.SetRubberBand(true);
  QStringList told;
  const auto tell = [&](const char* what, double x, double y, double width, double height) {
    told << QString("%1 %2,%3 %4x%5").arg(what).arg(x).arg(y).arg(width).arg(height);
  };
  QPointF moved;
  QObject::connect(&view_, &widgets::CanvasView::MouseMoved, [&](const QPointF& at) { moved = at; });
  QTest::mouseMove(&view_, {200, 100});
  ExpectNear(moved, {4, 2});
  QObject::connect(&view_, &widgets::CanvasView::Pressed, [&](const QPointF& at, Qt::MouseButton button) {
    tell(button == Qt::LeftButton ? "left" : "other", at.x(), at.y(), 0, 0);
  });
  QObject::connect(&view_, &widgets::CanvasView::RubberBand,
                   [&](const QRectF& at, Qt::KeyboardModifiers keys) {
                     tell(keys ? "keys" : "band", at.x(), at.y(), at.width(), at.height());
                   });
  using Action = std::function<void()>;
  using Drag = std::tuple<QPoint, QPoint, Action, Qt::KeyboardModifiers, QStringList>;
  const Action right = [&] { QTest::mouseClick(&view_, Qt::RightButton, {}, {9, 9}); };
  const Action escape = [&] { QTest::keyClick(&view_, Qt::Key_Escape); };
  const Action arrow = [&] { QTest::keyClick(&view_, Qt::Key_Right); };
  const Action nothing = [] {};
  for (const auto& [from, to, meanwhile, keys, wanted] :
       {Drag{{50, 50}, {52, 51}, nothing, {}, {"left 1,1 0x0"}},
        Drag{{200, 150}, {100, 100}, nothing, Qt::ControlModifier, {"keys 2,2 2x1"}},
        // The first corner stays on its point of the drawing; then three ways to give it up.
        Drag{{200, 100}, {200, 200}, arrow, {}, {"band 4,2 0.8x2"}}, Drag{{0, 0}, {90, 90}, escape, {}, {}},
        Drag{{0, 0}, {90, 90}, right, {}, {}}, Drag{{0, 0}, {90, 90}, [&] { view_.clearFocus(); }, {}, {}}}) {
    view_.setFocus();
    QTest::mousePress(&view_, Qt::LeftButton, {}, from);
    EXPECT_EQ(told, QStringList()) << "it may become a drag";
    QTest::mouseMove(&view_, to);
    const auto* band = view_.findChild<QRubberBand*>();
    EXPECT_EQ(band != nullptr && band->isVisible(), to != QPoint(52, 51));
    meanwhile();
    QTest::mouseRelease(&view_, Qt::LeftButton, keys, to);
    EXPECT_EQ(std::exchange(told, {}), wanted);
    EXPECT_TRUE(band == nullptr || band->isHidden());
    view_.Fit();
  }
  QTest::mouseClick(&view_, Qt::MiddleButton, {}, {60, 60});
  QTest::mousePress(&view_, Qt::RightButton, {}, {100, 50});
  EXPECT_EQ(std::exchange(told, {}), QStringList("other 2,1 0x0")) << "at once";
  QTest::mouseClick(&view_, Qt::LeftButton, {}, {50, 50});
  QTest::mouseDClick(&view_, Qt::LeftButton, {}, {50, 50});
  QTest::mouseRelease(&view_, Qt::LeftButton, {}, {50, 50});
  EXPECT_EQ(told, QStringList("left 1,1 0x0")) << "a double click is one press";
}

TEST_F(CanvasViewTest, OnlyAChangeIsPaintedAnew) {
  EXPECT_EQ(CountPixels(view_, Qt::red), 50 * 50);
  const int before = painted_;
  for (int i = 0; i < 5; ++i) view_.repaint();
  EXPECT_EQ(painted_, before);
  view_.resize(300, 150);
  view_.repaint();
  EXPECT_EQ(painted_, before + 1);
}

TEST(FitView, TheWholeIsInTheMiddle) {
  const platform::CanvasView wide = widgets::Centered({-0.05F, -0.05F, 1.1F, 1.6F}, {320, 160});
  EXPECT_FLOAT_EQ(wide.Height, 1.6F);
  EXPECT_FLOAT_EQ(wide.Width, 3.2F);
  EXPECT_FLOAT_EQ(wide.Left, -0.05F - (3.2F - 1.1F) / 2);
  EXPECT_FLOAT_EQ(widgets::Centered({0, 0, 2, 1}, {100, 100}).Top, -0.5F);
}

}  // namespace
}  // namespace morvane::test
