#include <gtest/gtest.h>

#include "platform/posix/PosixClock.h"
#include "platform/posix/PosixLocale.h"
#include "support/ClockContract.h"
#include "support/FakeClock.h"

namespace morvane::test {
namespace {

using Clocks = ::testing::Types<FakeClock, platform::PosixClock>;
INSTANTIATE_TYPED_TEST_SUITE_P(Core, ClockContract, Clocks);

TEST(PosixClock, AFixedNowStandsStill) {
  platform::PosixClock clock(platform::DateTime{2024, 2, 29, 23, 59, 58});
  clock.Sleep(1);
  EXPECT_EQ(platform::PosixLocale().ShortDate(clock.Now()), "2/29/2024");
  EXPECT_EQ(clock.Now().second, 58);
}

}  // namespace
}  // namespace morvane::test
