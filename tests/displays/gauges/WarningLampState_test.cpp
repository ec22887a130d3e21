#include "displays/gauges/WarningLampState.h"
#include "sensors/SensorFakes.h"
#include "sensors/records/Altitude_Data.h"
#include "sensors/records/Heading_Data.h"
#include "sensors/records/Position_Data.h"

#include <gtest/gtest.h>

namespace skyvane {
namespace {

TEST(WarningLampState, colours) {
    EXPECT_EQ(sensorLampColor(ISensor::GOOD), 0xff00ff00u);
    EXPECT_EQ(sensorLampColor(ISensor::MAYBE_WRONG), 0xffffff00u);
    EXPECT_EQ(sensorLampColor(ISensor::WRONG), 0xffff0000u);
    EXPECT_EQ(procedureLampColor({false, true, true}), 0xffffffffu);
    EXPECT_EQ(procedureLampColor({true, false, true}), 0xffffffffu);
    EXPECT_EQ(procedureLampColor({true, true, true}), 0xffffff00u);
    EXPECT_EQ(procedureLampColor({true, true, false}), 0xff00ff00u);
}

TEST(WarningLampState, namesAreReadBack) {
    for (const char* name : {"DEFAULTSENSORS", "ALTITUDE", "COURSE", "SPEED"})
        EXPECT_STREQ(nameOf(parseWarningType(name)), name);
    EXPECT_EQ(parseWarningType("speed"), WarningType::DEFAULTSENSORS);
}

TEST(WarningLampState, describesEachSensorAndWhatItIsTheDefaultOf) {
    ManagerRig rig;
    rig.load("SensorCount = 3\nD2 = 1\nD4 = 2\nD5 = 2\nD6 = 1\n[S1]\nFactoryIndex = 0\n[S2]\nFactoryIndex = 0\n");
    rig.sensor(1)->level = ISensor::MAYBE_WRONG;
    rig.sensor(2)->level = ISensor::WRONG;
    const std::string heading = rig.manager.getSensorDataFactory(ISensorData::Heading)->getName();
    const std::string position = rig.manager.getSensorDataFactory(ISensorData::Position)->getName();
    const std::string altitude = rig.manager.getSensorDataFactory(ISensorData::Altitude)->getName();
    EXPECT_EQ(describeSensors(rig.manager), "Sensor Details:\n"
                                            "\nSensor: FakeSensor\n-\n" +
                                                heading + ": unreliable\n" + "\nSensor: FakeSensor\n-\n" + position +
                                                ": wrong\n" + altitude + ": wrong\n");
    rig.load("SensorCount = 1\n");
    EXPECT_EQ(describeSensors(rig.manager), "Sensor Details:\n");
}

} // namespace
} // namespace skyvane
