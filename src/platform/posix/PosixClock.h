// Real time for programs without an event queue: the command line and the side programs.
#pragma once

#include <optional>

#include "platform/Clock.h"

namespace morvane::platform {

class PosixClock : public Clock {
 public:
  // With `fixedNow`, Now always returns that; waits and MonotonicSeconds stay real.
  explicit PosixClock(std::optional<DateTime> fixedNow = std::nullopt) : fixedNow_(fixedNow) {}

  DateTime Now() const override;
  double MonotonicSeconds() const override;
  void Sleep(int milliseconds) override;
  void DoEvents() override {}

 private:
  std::optional<DateTime> fixedNow_;
};

}  // namespace morvane::platform
