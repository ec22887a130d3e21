#include "core/time/Time.h"

#include <gtest/gtest.h>

namespace skyvane {
namespace {

TEST(Time, differences) {
    EXPECT_EQ(TimeDiff(5, 3), 2u);
    EXPECT_EQ(TimeDiff(3, 5), 6u);
    EXPECT_EQ(TimeDiff(7, 7), 0u);
    EXPECT_EQ(TimeDiff(0xFFFFFFF0u, 0u), 16u);
}

TEST(Time, asksTheClockThatWasPut) {
    ManualClock clock;
    setClock(&clock);
    EXPECT_EQ(MilliSecs(), 0u);
    clock.advance(1.5);
    Delay(250);
    Delay(-10);
    EXPECT_EQ(MilliSecs(), 1750u);
    EXPECT_DOUBLE_EQ(Secs(), 1.75);
    clock.advance(4294967.296);
    EXPECT_NEAR(MilliSecs(), 1750.0, 1.0);
    setClock(nullptr);
    const double now = Secs();
    Delay(2);
    EXPECT_GE(Secs(), now + 0.002);
}

} // namespace
} // namespace skyvane
