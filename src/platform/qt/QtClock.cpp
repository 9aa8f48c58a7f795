#include "platform/qt/QtClock.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDeadlineTimer>
#include <QTimer>

namespace morvane::platform {

QtClock::QtClock(Operations& operations, std::optional<DateTime> fixedNow)
    : operations_(operations), fixedNow_(fixedNow) {
  started_.start();
}

DateTime QtClock::Now() const {
  if (fixedNow_) return *fixedNow_;
  const QDateTime now = QDateTime::currentDateTime();
  const QDate date = now.date();
  const QTime time = now.time();
  return {date.year(), date.month(), date.day(), time.hour(), time.minute(), time.second()};
}

double QtClock::MonotonicSeconds() const {
  return static_cast<double>(started_.nsecsElapsed()) / 1e9;
}

void QtClock::Sleep(int milliseconds) {
  const Operations::Scope scope(operations_);
  const QDeadlineTimer deadline(std::max(milliseconds, 0), Qt::PreciseTimer);
  QTimer wake;
  wake.setTimerType(Qt::PreciseTimer);
  wake.start(std::max(milliseconds, 0));
  // A nested QEventLoop would end early when the program quits; this waits its time out.
  do {
    QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
  } while (!deadline.hasExpired());
}

void QtClock::DoEvents() {
  const Operations::Scope scope(operations_);
  QCoreApplication::processEvents();
}

}  // namespace morvane::platform
