// Time and waiting. Every polling loop waits here, so tests run ten-second time-outs in no time.
#pragma once

namespace morvane::platform {

// Local time.
struct DateTime {
  int year = 1970;
  int month = 1;  // 1 to 12
  int day = 1;    // 1 to 31
  int hour = 0;   // 0 to 23
  int minute = 0;
  int second = 0;
};

class Clock {
 public:
  virtual ~Clock() = default;
  virtual DateTime Now() const = 0;
  // Seconds from an arbitrary start; never goes back.
  virtual double MonotonicSeconds() const = 0;
  // Waits at least the time told while events and transport input keep running.
  virtual void Sleep(int milliseconds) = 0;
  // Runs what is waiting in the event queue and returns.
  virtual void DoEvents() = 0;
};

}  // namespace morvane::platform
