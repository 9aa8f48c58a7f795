#include "platform/posix/PosixClock.h"

#include <time.h>

#include <chrono>
#include <thread>

namespace morvane::platform {

DateTime PosixClock::Now() const {
  if (fixedNow_) return *fixedNow_;
  const time_t seconds = time(nullptr);
  tm local{};
  localtime_r(&seconds, &local);
  return {local.tm_year + 1900, local.tm_mon + 1, local.tm_mday, local.tm_hour, local.tm_min, local.tm_sec};
}

double PosixClock::MonotonicSeconds() const {
  return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

void PosixClock::Sleep(int milliseconds) {
  std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds));
}

}  // namespace morvane::platform
