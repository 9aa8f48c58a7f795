#include "platform/Clock.h"

#include <gtest/gtest.h>

#include "platform/posix/PosixClock.h"
#include "platform/posix/PosixLocale.h"

namespace morvane::platform {
namespace {

TEST(PosixClock, WaitsAtLeastTheTimeToldAndAFixedNowStandsStill) {
  PosixClock clock(DateTime{2024, 2, 29, 23, 59, 58});
  const double start = clock.MonotonicSeconds();
  for (const int milliseconds : {20, 1, 0, -5}) clock.Sleep(milliseconds);
  EXPECT_GE(clock.MonotonicSeconds() - start, 0.021);
  EXPECT_EQ(PosixLocale().ShortDate(clock.Now()), "2/29/2024");
  EXPECT_EQ(clock.Now().second, 58);
}

}  // namespace
}  // namespace morvane::platform
