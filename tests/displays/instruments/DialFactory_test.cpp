#include "core/ini/IniFile.h"
#include "displays/instruments/AltimeterFactory.h"
#include "displays/instruments/AttitudeIndicatorFactory.h"
#include "displays/instruments/BatteryPanelFactory.h"
#include "displays/instruments/CompassFactory.h"
#include "displays/instruments/GMeterFactory.h"
#include "displays/instruments/OneSegmentPanelFactory.h"
#include "displays/instruments/SlipIndicatorFactory.h"
#include "displays/instruments/SpeedIndicatorFactory.h"
#include "displays/instruments/TurnRateIndicatorFactory.h"
#include "displays/instruments/VerticalSpeedIndicatorFactory.h"
#include "displays/instruments/WarningLampFactory.h"

#include <gtest/gtest.h>

namespace skyvane {
namespace {

TEST(DialFactory, names) {
    EXPECT_EQ(AttitudeIndicatorFactory(nullptr).getName(), "AttitudeIndicator");
    EXPECT_EQ(AltimeterFactory(nullptr).getName(), "Altimeter");
    EXPECT_EQ(CompassFactory(nullptr).getName(), "Compass");
    EXPECT_EQ(VerticalSpeedIndicatorFactory(nullptr).getName(), "VerticalSpeedIndicator");
    EXPECT_EQ(SpeedIndicatorFactory(nullptr).getName(), "Ground/AirSpeedIndicator");
    EXPECT_EQ(TurnRateIndicatorFactory(nullptr).getName(), "TurnCoordinator");
    EXPECT_EQ(GMeterFactory(nullptr).getName(), "G-Meter");
    EXPECT_EQ(OneSegmentPanelFactory(nullptr).getName(), "OneSegmentPanel");
    EXPECT_EQ(WarningLampFactory(nullptr).getName(), "WarningLamp");
    EXPECT_EQ(BatteryPanelFactory(nullptr).getName(), "BatteryPanel");
    EXPECT_EQ(SlipIndicatorFactory(nullptr).getName(), "Slip/Skid Indicator");
}

TEST(DialFactory, setupWritesTheDefaultSensorIntoItsSectionAlone) {
    IniFile ini;
    ini.set("P2", "Page", "1");
    EXPECT_TRUE(AltimeterFactory(nullptr).setup(&ini, "P3"));
    EXPECT_EQ(ini.get("P3", "SensorCount"), "1");
    EXPECT_EQ(ini.get("P3", "Sensor0"), "-1");
    EXPECT_FALSE(ini.isAvailable("P2", "Sensor0"));
}

} // namespace
} // namespace skyvane
