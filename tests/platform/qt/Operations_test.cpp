// Windows that are closed, and programs that are left, in the middle of an operation.
#include "platform/qt/Operations.h"

#include <gtest/gtest.h>

#include <QPointer>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include "common/RunAndWait.h"
#include "platform/qt/QtClock.h"
#include "support/FakeProcesses.h"
#include "support/qt_WindowStation.h"

namespace morvane::test {
namespace {

// A window with one button that runs a slow operation: several waits, and a look at the window after
// each.
class SlowWindow : public QWidget {
 public:
  SlowWindow(platform::Operations& operations, const bool& abort) : operations_(operations), abort_(abort) {
    auto* button = new QPushButton("Run", this);
    button->setObjectName("cmdRun");
    connect(button, &QPushButton::clicked, this, &SlowWindow::Run);
  }

  int rounds = 3;
  int* done = nullptr;  // rounds that found their window alive
  std::function<void(int)> inRound;

 private:
  void Run() {
    const platform::Operations::Scope scope(operations_, this);
    const QPointer<SlowWindow> self(this);
    for (int round = 0; round < rounds && !abort_; ++round) {
      platform::QtClock clock(operations_);
      QTimer::singleShot(0, qApp, [self, round] {
        if (self && self->inRound) self->inRound(round);
      });
      clock.Sleep(2);
      clock.DoEvents();
      if (self.isNull()) return;
      ++*done;
    }
  }

  platform::Operations& operations_;
  const bool& abort_;
};

struct Slow {
  bool abort = false;
  platform::Operations operations{abort};
  QPointer<SlowWindow> window{new SlowWindow(operations, abort)};
  int done = 0;

  Slow() {
    window->done = &done;
    window->show();
  }
  void Run() { QTest::mouseClick(&Find<QPushButton>(*window, "cmdRun"), Qt::LeftButton); }
};

TEST(Operations, AWindowClosedUnderItsOperationGoesAfterIt) {
  Slow slow;
  slow.window->inRound = [&](int round) {
    if (round != 0) return;
    slow.window->hide();
    slow.operations.DeleteWhenIdle(slow.window);
    EXPECT_TRUE(slow.abort) << "its own operation must end";
  };
  slow.Run();
  EXPECT_EQ(slow.done, 1) << "the flag ended the loop, and the window was alive until then";
  ASSERT_FALSE(slow.window.isNull());
  WindowStation::Pump();
  EXPECT_TRUE(slow.window.isNull());
  EXPECT_FALSE(slow.abort) << "the next operation may run";
}

TEST(Operations, AnotherWindowDoesNotEndTheOperation) {
  Slow slow;
  QPointer<QWidget> other(new QWidget);
  slow.window->inRound = [&](int round) {
    if (round == 0) slow.operations.DeleteWhenIdle(other);
  };
  slow.Run();
  EXPECT_EQ(slow.done, 3);
  WindowStation::Pump();
  EXPECT_TRUE(other.isNull());
  EXPECT_FALSE(slow.window.isNull());
  delete slow.window;
}

TEST(Operations, WhatWaitsRunsFromTheOutermostLoop) {
  bool abort = false;
  platform::Operations operations(abort);
  platform::QtClock clock(operations);
  bool ran = false;
  {
    const platform::Operations::Scope scope(operations);
    operations.WhenIdle([&] { ran = true; });
    clock.Sleep(1);
    EXPECT_FALSE(ran);
  }
  EXPECT_FALSE(ran) << "the operation is still on the stack";
  clock.DoEvents();
  EXPECT_FALSE(ran) << "a nested loop is no outermost one";
  WindowStation::Pump();
  EXPECT_TRUE(ran);
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
  EXPECT_TRUE(station.abort);
  EXPECT_FALSE(unloaded);
  WindowStation::Pump();
  EXPECT_TRUE(unloaded);
  EXPECT_FALSE(frame.isVisible());
}

}  // namespace
}  // namespace morvane::test
