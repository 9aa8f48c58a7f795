// Windows that are closed, and programs that are left, in the middle of an operation.
#include "platform/qt/Operations.h"

#include <gtest/gtest.h>

#include "common/RunAndWait.h"
#include "platform/qt/QtClock.h"
#include "support/qt_WindowStation.h"

namespace morvane::test {
namespace {

TEST(Operations, AWindowClosedUnderItsOperationGoesAfterIt) {
  bool abort = false;
  platform::Operations operations(abort);
  platform::QtClock clock(operations);
  const QPointer<QWidget> window(new QWidget), other(new QWidget);
  bool ran = false;
  {
    const platform::Operations::Scope scope(operations, window);
    operations.WhenIdle([&] { ran = true; });
    operations.DeleteWhenIdle(other);
    clock.Sleep(2);
    EXPECT_FALSE(abort) << "another window does not end the operation";
    operations.DeleteWhenIdle(window);
    EXPECT_TRUE(abort) << "its own operation must end";
    clock.Sleep(2);
  }
  clock.DoEvents();
  EXPECT_TRUE(window && other && !ran) << "a nested loop is no outermost one";
  WindowStation::Pump();
  EXPECT_TRUE(!window && !other && ran);
  EXPECT_FALSE(abort) << "the next operation may run";
}

// The frame is closed while a side program runs that never ends by itself.
TEST(Operations, LeavingTheProgramEndsTheSideProgramFirst) {
  WindowStation station;
  station.processes.scripts.push_back({true, -1, 0, {}});
  app::frmMain& frame = station.Load();
  bool unloaded = false;
  QObject::connect(&frame, &app::frmMain::Unloaded, [&] { unloaded = true; });
  int polls = 0;
  station.clock.onWait = [&](int) {
    const platform::Operations::Scope scope(station.operations);
    if (++polls == 2) frame.close();
    QCoreApplication::processEvents();
    EXPECT_FALSE(unloaded) << "the operation has not returned yet";
  };
  station.folder.Write("TOOL.EXE", "program");
  EXPECT_EQ(station.runner.RunAndWait("TOOL.EXE", {}), common::kStillActive);
  EXPECT_TRUE(station.processes.runs.at(0).terminated);
  EXPECT_TRUE(station.abort && !unloaded);
  WindowStation::Pump();
  EXPECT_TRUE(unloaded && !frame.isVisible());
}

}  // namespace
}  // namespace morvane::test
