// A clock that stands still until someone waits.
#pragma once

#include <algorithm>
#include <functional>

#include "platform/Clock.h"

namespace morvane::test {

class FakeClock : public platform::Clock {
 public:
  // What Now returns; the test moves it, waits do not.
  platform::DateTime now{2024, 3, 5, 14, 7, 9};
  double seconds = 0;
  int totalSlept = 0;  // milliseconds
  // Runs after each wait, as events would in it, with the milliseconds that passed (0 for DoEvents).
  std::function<void(int)> onWait;

  platform::DateTime Now() const override { return now; }
  double MonotonicSeconds() const override { return seconds; }
  void Sleep(int milliseconds) override {
    milliseconds = std::max(milliseconds, 0);
    seconds += milliseconds / 1000.0;
    totalSlept += milliseconds;
    if (onWait) onWait(milliseconds);
  }
  void DoEvents() override { Sleep(0); }
};

}  // namespace morvane::test
