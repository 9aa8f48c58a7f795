// Time from the system, and waits that keep the event loop running.
#pragma once

#include <QElapsedTimer>
#include <optional>

#include "platform/Clock.h"
#include "platform/qt/Operations.h"

namespace morvane::platform {

class QtClock : public Clock {
 public:
  // With `fixedNow`, Now always returns that; waits and MonotonicSeconds stay real.
  explicit QtClock(Operations& operations, std::optional<DateTime> fixedNow = std::nullopt);
  DateTime Now() const override;
  double MonotonicSeconds() const override;
  void Sleep(int milliseconds) override;
  void DoEvents() override;

 private:
  Operations& operations_;
  std::optional<DateTime> fixedNow_;
  QElapsedTimer started_;
};

}  // namespace morvane::platform
