#include "platform/qt/QtClock.h"

#include <QCoreApplication>
#include <QTimer>

#include "support/ClockContract.h"

namespace morvane::test {
namespace {

class OwnClock : public platform::Clock {
 public:
  platform::DateTime Now() const override { return clock_.Now(); }
  double MonotonicSeconds() const override { return clock_.MonotonicSeconds(); }
  void Sleep(int milliseconds) override { clock_.Sleep(milliseconds); }
  void DoEvents() override { clock_.DoEvents(); }

 private:
  bool abort_ = false;
  platform::Operations operations_{abort_};
  platform::QtClock clock_{operations_};
};

INSTANTIATE_TYPED_TEST_SUITE_P(Qt, ClockContract, OwnClock);

TEST(QtClock, EventsRunInAWaitAndQuittingDoesNotShortenIt) {
  OwnClock clock;
  int ticks = 0;
  QTimer timer;
  timer.start(2);
  QObject::connect(&timer, &QTimer::timeout, [&] { ++ticks; });
  QTimer::singleShot(1, [] { QCoreApplication::quit(); });
  const double start = clock.MonotonicSeconds();
  clock.Sleep(30);
  EXPECT_GE(clock.MonotonicSeconds() - start, 0.030);
  EXPECT_GE(ticks, 2);
}

}  // namespace
}  // namespace morvane::test
