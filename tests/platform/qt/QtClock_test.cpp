#include "platform/qt/QtClock.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QTimer>

namespace morvane::test {
namespace {

TEST(QtClock, EventsRunInAWaitAndQuittingDoesNotShortenIt) {
  bool abort = false;
  platform::Operations operations(abort);
  platform::QtClock clock(operations);
  int ticks = 0;
  QTimer timer;
  timer.start(2);
  QObject::connect(&timer, &QTimer::timeout, [&] { ++ticks; });
  QTimer::singleShot(1, [] { QCoreApplication::quit(); });
  const double start = clock.MonotonicSeconds();
  for (const int milliseconds : {30, 0, -5}) clock.Sleep(milliseconds);
  EXPECT_GE(clock.MonotonicSeconds() - start, 0.030);
  EXPECT_GE(ticks, 2);
}

}  // namespace
}  // namespace morvane::test
