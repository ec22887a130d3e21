#include "displays/gauges/BatteryGauge.h"

#include <gtest/gtest.h>
#include <limits>

namespace skyvane {
namespace {

TEST(BatteryGauge, theColourGoesFromRedOverYellowToGreen) {
    EXPECT_EQ(batteryColor(0.0), 0xffff0000u);
    EXPECT_EQ(batteryColor(0.2), 0xffff0000u);
    EXPECT_EQ(batteryColor(0.5), 0xffffff00u);
    EXPECT_EQ(batteryColor(1.0), 0xff00ff00u);
}

TEST(BatteryGauge, anUnknownStateFillsNothing) {
    EXPECT_EQ(shownFill({0, 0.8, {}, 0.0}), 0.0);
    EXPECT_EQ(shownFill({1, 0.8, {}, 0.0}), 0.8);
    EXPECT_EQ(shownFill({1, 7.0, {}, 0.0}), 1.0);
    EXPECT_EQ(shownFill({1, std::numeric_limits<double>::quiet_NaN(), {}, 0.0}), 0.0);
}

TEST(BatteryGauge, tellsHowLongItLasts) {
    EXPECT_EQ(describeBattery({0, 0.8, {}, 0.0}), "Battery Status: unknown");
    EXPECT_EQ(describeBattery({1, 0.875, {}, 0.0}), "Battery Status: 88%");
    // A tenth of the fill in an hour.
    EXPECT_EQ(describeBattery({1, 0.55, -0.1 / 3600.0, 150.0}),
              "Battery Status: 55%\nLast measurement (2 minutes ago):\nDischarging with: 10.0 % per hour\n"
              "Time remaining: 5 hours 30 min");
    EXPECT_EQ(describeBattery({2, 0.5, 0.0001, 0.0}),
              "Battery Status: 50%\nLast measurement (0 minutes ago):\nCharging with: 0.0100 % per second\n"
              "Time until fully charged: 1 hours 23 min");
}

TEST(BatteryGauge, aStandingOrAbsurdSpeedTellsNoAbsurdTime) {
    EXPECT_EQ(describeBattery({1, 0.5, 0.0, 60.0}), "Battery Status: 50%\nLast measurement (1 minutes ago):\n");
    EXPECT_NE(describeBattery({1, 0.5, -1e-300, 0.0}).find("Time remaining: 1000 hours 0 min"), std::string::npos);
    EXPECT_EQ(describeBattery({1, 0.5, std::numeric_limits<double>::quiet_NaN(), 0.0}), "Battery Status: 50%");
}

} // namespace
} // namespace skyvane
