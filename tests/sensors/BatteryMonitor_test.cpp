#include "sensors/BatteryMonitor.h"

#include "sensors/SensorFakes.h"
#include "sensors/TemporaryFolder.h"

#include <cmath>
#include <gtest/gtest.h>

namespace skyvane {
namespace {

using Texts = std::vector<std::string>;

/// A battery that a test writes, read each 1.5 seconds.
struct BatteryRig {
    BatteryRig() { battery.setFolder(folder.path()); }
    void read(const std::string& capacity, const std::string& status) {
        folder.write("capacity", capacity + "\n");
        folder.write("status", status + "\n");
        pass(1.5);
    }
    void pass(double seconds) {
        now += seconds;
        battery.update(now, host);
    }

    TemporaryFolder folder;
    FakeHost host;
    BatteryMonitor battery;
    double now = 0.0;
};

TEST(BatteryMonitor, readsOnceASecond) {
    BatteryRig rig;
    rig.read("80", "Charging");
    EXPECT_EQ(rig.battery.fill(), 0.8);
    EXPECT_EQ(rig.battery.state(), BatteryMonitor::ChargingOrFull);
    rig.folder.write("capacity", "70");
    rig.pass(1.0);
    EXPECT_EQ(rig.battery.fill(), 0.8);
    rig.pass(0.001);
    EXPECT_EQ(rig.battery.fill(), 0.7);
}

TEST(BatteryMonitor, keepsItsValuesWithoutReadableFiles) {
    BatteryRig rig;
    rig.pass(2.0);
    EXPECT_EQ(rig.battery.state(), BatteryMonitor::Unknown);
    EXPECT_TRUE(rig.host.messages.empty());
    rig.read("60", "Full");
    rig.read("rubbish", "");
    EXPECT_EQ(rig.battery.fill(), 0.6);
    EXPECT_EQ(rig.battery.state(), BatteryMonitor::ChargingOrFull);
    rig.read("-5", "Full");
    EXPECT_EQ(rig.battery.fill(), 0.6);
    rig.read("1e300", "Full");
    EXPECT_EQ(rig.battery.fill(), 1.0);
    rig.folder.remove("capacity");
    rig.folder.remove("status");
    rig.pass(2.0);
    EXPECT_EQ(rig.battery.fill(), 1.0);
}

TEST(BatteryMonitor, tellsWhenPowerGoesAndTakesItBack) {
    BatteryRig rig;
    rig.read("80", "Charging");
    EXPECT_TRUE(rig.host.messages.empty());
    rig.read("80", "Discharging");
    EXPECT_EQ(rig.host.texts(), Texts{"\nExternal power lost.\n"});
    EXPECT_EQ(rig.host.messages.begin()->second.level, MESSAGE_RED);
    EXPECT_LT(rig.host.messages.begin()->second.timeout, 0);
    rig.read("80", "Full");
    EXPECT_TRUE(rig.host.messages.empty());
}

TEST(BatteryMonitor, warnsOfALowChargeBesideTheLostPower) {
    BatteryRig rig;
    rig.read("80", "Charging");
    rig.read("16", "Discharging");
    EXPECT_EQ(rig.host.texts(), Texts{"\nExternal power lost.\n"});
    rig.read("15", "Discharging");
    EXPECT_EQ(rig.host.texts(), (Texts{"\nExternal power lost.\n", "\nLow Battery: 15%\n"}));
    rig.host.messages.clear();
    rig.read("15", "Discharging");
    EXPECT_TRUE(rig.host.messages.empty()) << "nothing has changed";
    rig.read("14", "Discharging");
    EXPECT_EQ(rig.host.texts(), Texts{"\nLow Battery: 14%\n"});
    rig.read("14", "Charging");
    EXPECT_EQ(rig.host.texts(), Texts{"\nLow Battery: 14%\n"}) << "the other message's end doesn't take it";
}

TEST(BatteryMonitor, warnsOfAnEmptyBatteryAtTheFirstRead) {
    BatteryRig rig;
    rig.read("0", "Discharging");
    EXPECT_EQ(rig.host.texts(), Texts{"\nLow Battery: 0%\n"});
}

TEST(BatteryMonitor, measuresTheChargeSpeedFromTwoMeasurementsOn) {
    BatteryRig rig;
    double speed = 0.0;
    rig.read("80", "Discharging");
    rig.read("80", "Discharging");
    EXPECT_FALSE(rig.battery.chargeSpeed(speed));
    for (int percent = 79; percent > 70; --percent) {
        rig.pass(58.5);
        rig.read(std::to_string(percent), "Discharging");
    }
    ASSERT_TRUE(rig.battery.chargeSpeed(speed));
    EXPECT_NEAR(speed, -0.01 / 60.0, 0.01 * 0.01 / 60.0);
    EXPECT_EQ(rig.battery.lastMeasurementTime(), rig.now);
}

} // namespace
} // namespace skyvane
