// What every clock owes the core; the fake and each adapter run it.
#pragma once

#include <gtest/gtest.h>

#include "platform/Clock.h"

namespace morvane::test {

// `ClockType` is made without arguments.
template <typename ClockType>
class ClockContract : public ::testing::Test {
 protected:
  ClockType clock_;
};

TYPED_TEST_SUITE_P(ClockContract);

TYPED_TEST_P(ClockContract, WaitsAtLeastTheTimeTold) {
  platform::Clock& clock = this->clock_;
  double last = clock.MonotonicSeconds();
  for (int milliseconds : {0, 1, 20}) {
    clock.Sleep(milliseconds);
    const double now = clock.MonotonicSeconds();
    EXPECT_GE(now - last, milliseconds / 1000.0 - 1e-9);
    last = now;
  }
  clock.Sleep(-5);
  clock.DoEvents();
  EXPECT_GE(clock.MonotonicSeconds(), last);
}

TYPED_TEST_P(ClockContract, NowIsADate) {
  const platform::DateTime now = this->clock_.Now();
  EXPECT_GE(now.year, 2024);
  EXPECT_TRUE(now.month >= 1 && now.month <= 12 && now.day >= 1 && now.day <= 31);
  EXPECT_TRUE(now.hour >= 0 && now.hour <= 23 && now.minute >= 0 && now.minute <= 59);
  EXPECT_TRUE(now.second >= 0 && now.second <= 60);
}

REGISTER_TYPED_TEST_SUITE_P(ClockContract, WaitsAtLeastTheTimeTold, NowIsADate);

}  // namespace morvane::test
