// Time from the system, and waits that keep the event loop running.
#pragma once

#include <QElapsedTimer>

#include "platform/Clock.h"
#include "platform/qt/Operations.h"

namespace morvane::platform {

class QtClock : public Clock {
 public:
  explicit QtClock(Operations& operations);
  DateTime Now() const override;
  double MonotonicSeconds() const override;
  void Sleep(int milliseconds) override;
  void DoEvents() override;

 private:
  Operations& operations_;
  QElapsedTimer started_;
};

}  // namespace morvane::platform
