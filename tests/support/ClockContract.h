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

REGISTER_TYPED_TEST_SUITE_P(ClockContract, WaitsAtLeastTheTimeTold);

}  // namespace morvane::test
