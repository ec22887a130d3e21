#include "sensors/simulators/XPlaneSensor.h"

#include "sensors/SensorFakes.h"
#include "sensors/records/Acceleration_Data.h"
#include "sensors/records/Attitude_Data.h"
#include "sensors/records/GPS_Data.h"
#include "sensors/records/LocGs_Data.h"
#include "sensors/records/Position_Data.h"
#include "sensors/records/Pressure_Data.h"
#include "sensors/simulators/XPlaneBytes.h"
#include "sensors/simulators/XPlaneSensorFactory.h"
#include "sensors/transport/IPv4UDPSocket.h"
#include "support/AllocationCounter.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace skyvane {
namespace {

const float nan = std::numeric_limits<float>::quiet_NaN();
const float infinity = std::numeric_limits<float>::infinity();

struct XPlaneSensorTest : testing::Test {
    ManagerRig rig;
    XPlaneSensorFactory factory{&rig.manager};
    XPlaneSensor sensor{&factory, &rig.manager, ISensor::GOOD, 0, XPlaneSensorFactory::BufferBytes};

    bool take(const std::string& bytes) { return sensor.OnDatagram(bytes.data(), bytes.size(), MilliSecs()); }
    bool take(int group, std::array<float, 8> values) { return take(XPlaneBytes().group(group, values).text()); }
    template <class T>
    T& record(ISensorData::Type type) {
        return dynamic_cast<T&>(*sensor.getData(type));
    }
    double value(ISensorData::Type type) { return record<ScalarData>(type).value; }
    ISensor::WarningLevel warning(ISensorData::Type type) { return sensor.getWarning(type); }
};

TEST_F(XPlaneSensorTest, supportsItsTypesAndNoOther) {
    for (int i = -1; i <= ISensorData::TypeCount; ++i) {
        const auto type = static_cast<ISensorData::Type>(i);
        const bool supported = (i >= 0 && i <= 13) || (i >= 15 && i <= 17);
        EXPECT_EQ(sensor.isDataTypeSupported(type), supported) << i;
        EXPECT_EQ(sensor.getData(type) != nullptr, supported) << i;
        EXPECT_EQ(warning(type), ISensor::WRONG) << i;
        EXPECT_FALSE(sensor.lastTimeUpdated(type)) << i;
        EXPECT_TRUE(!supported || sensor.getData(type)->getType() == type) << i;
    }
    EXPECT_EQ(sensor.getSupportedDataTypes().size(), 17u);
    EXPECT_EQ(factory.getName(), "XPlane Flight Simulator");
    EXPECT_EQ(sensor.getName(), "XPlane Flight Simulator");
}

TEST_F(XPlaneSensorTest, fillsEachRecordFromItsGroup) {
    rig.clock.advance(2.345);
    ASSERT_TRUE(take(XPlaneBytes()
                         .group(1, {9, 9, 9, 9, 9, 13.5078125f, 9, 9})
                         .group(3, {101, 9, 9, 95, 9, 9, 9, 9})
                         .group(6, {29.92f, 9, -5, 9, 9, 9, 9, 9})
                         .group(20, {42.5f, 1.25f, 10000, 9, 9, 9, 9, 9})
                         .group(21, {9, 9, 9, 9, -2.5f, 9, 9, 9})
                         .group(18, {9, 9, 9, 9, 9, 9, 9, 10})
                         .group(17, {5, 20, 270, 9, 9, 9, 9, 9})
                         .text()));
    const auto& gps = record<GPS_Data>(ISensorData::GPS);
    EXPECT_EQ(gps.hour, 13);
    EXPECT_EQ(gps.minute, 30);
    EXPECT_EQ(gps.second, 28);
    EXPECT_EQ(gps.millisecond, 125);
    EXPECT_EQ(gps.timeStamp, 2345u);
    EXPECT_DOUBLE_EQ(gps.groundSpeed, 95);
    EXPECT_DOUBLE_EQ(gps.latitude, 42.5);
    EXPECT_DOUBLE_EQ(gps.longitude, 1.25);
    EXPECT_DOUBLE_EQ(gps.altitude, 3048);
    EXPECT_DOUBLE_EQ(gps.groundTrack, 270);
    EXPECT_EQ(gps.fixQuality, 1);
    EXPECT_EQ(gps.satelliteCount, 99);
    EXPECT_EQ(gps.fixType, 3);
    EXPECT_DOUBLE_EQ(gps.pdop, std::sqrt(2.0));
    EXPECT_EQ(gps.year, 2099);
    EXPECT_TRUE(gps.timeAvailable && gps.groundTrackAvailable && !gps.magneticVariationAvailable);
    EXPECT_DOUBLE_EQ(value(ISensorData::AirSpeed), 101);
    EXPECT_DOUBLE_EQ(value(ISensorData::GroundSpeed), 95);
    EXPECT_NEAR(value(ISensorData::OutsidePressure), 1013.2, 0.1);
    EXPECT_EQ(value(ISensorData::InsidePressure), value(ISensorData::OutsidePressure));
    EXPECT_DOUBLE_EQ(value(ISensorData::InsideTemperature), -5);
    EXPECT_DOUBLE_EQ(value(ISensorData::OutsideTemperature), -5);
    EXPECT_DOUBLE_EQ(value(ISensorData::Altitude), 3048);
    EXPECT_DOUBLE_EQ(value(ISensorData::VerticalSpeed), -2.5);
    EXPECT_DOUBLE_EQ(value(ISensorData::Heading), 270);
    EXPECT_DOUBLE_EQ(record<Position_Data>(ISensorData::Position).longitude, 1.25);
    const auto& acceleration = record<Acceleration_Data>(ISensorData::Acceleration);
    EXPECT_NEAR(acceleration.x, -1.7298, 1e-4);
    EXPECT_DOUBLE_EQ(acceleration.y, -9.81);
    EXPECT_DOUBLE_EQ(acceleration.z, 0.0);
    EXPECT_EQ(warning(ISensorData::Heading), ISensor::GOOD);
}

/// Nose 5 degrees up, 20 degrees of right bank, towards west: forward points west and up, the right wing down.
TEST_F(XPlaneSensorTest, attitudeIsThatOfTheAircraft) {
    take(17, {5, 20, 270, 0, 0, 0, 0, 0});
    const Matrix3x3& matrix = record<Attitude_Data>(ISensorData::Attitude).matrix;
    const double up = std::sin(5 / 57.29577951);
    EXPECT_NEAR(matrix.getForwardVector().X, -std::sqrt(1 - up * up), 1e-6);
    EXPECT_NEAR(matrix.getForwardVector().Y, up, 1e-6);
    EXPECT_NEAR(matrix.getForwardVector().Z, 0, 1e-6);
    EXPECT_NEAR(matrix.column(0).Y, -std::sin(20 / 57.29577951) * std::cos(5 / 57.29577951), 1e-6);
}

TEST_F(XPlaneSensorTest, theBeamsFollowTheNeedleThatTheSimulatorShows) {
    const auto difference = [&](float dots) {
        take(99, {0, 0, 0, 0, 0, dots, -dots, 0});
        const auto& localizer = record<LocGs_Data>(ISensorData::Localizer);
        return std::array<double, 2>{localizer.amplitude90Hz, localizer.amplitude150Hz};
    };
    const auto expectNear = [](std::array<double, 2> actual, double at90, double at150) {
        EXPECT_NEAR(actual[0], at90, 1e-6);
        EXPECT_NEAR(actual[1], at150, 1e-6);
    };
    expectNear(difference(0), 0.62, 0.5);
    expectNear(difference(1), 0.7 / 0.8064516, 0.3);
    expectNear(difference(2.5f), 1 / 0.8064516, 0);
    expectNear(difference(-2.5f), 0, 1);
    expectNear(difference(-2.6f), 0, 1);
    expectNear(difference(2.6f), 1.24, 0);
    EXPECT_FLOAT_EQ(record<LocGs_Data>(ISensorData::Glideslope).amplitude150Hz, 1.0f);
    EXPECT_EQ(warning(ISensorData::Glideslope), ISensor::GOOD);
}

TEST_F(XPlaneSensorTest, turnRateIsSmoothedOverTwoSeconds) {
    const auto fly = [&](float radiansPerSecond, int frames) {
        for (int i = 0; i < frames; ++i) {
            rig.clock.advance(0.033);
            take(16, {0, 0, radiansPerSecond, 0, 0, 0, 0, 0});
        }
        return value(ISensorData::TurnRate);
    };
    EXPECT_NEAR(fly(0.05f, 1), 2.8648, 1e-3) << "no zero of the construction is mixed in";
    fly(0.05f, 60);
    double weightOfTurn = 0.0, weightOfAll = 0.0;
    for (int i = 0; i < 30 + 61; ++i) {
        const double weight = std::exp(-0.5 * (0.033 * i / 2.0) * (0.033 * i / 2.0));
        weightOfAll += weight;
        weightOfTurn += i < 30 ? 0.0 : weight;
    }
    EXPECT_NEAR(fly(0.0f, 30), 2.8648 * weightOfTurn / weightOfAll, 1e-3) << "a second after the end of the turn";
    EXPECT_NEAR(fly(0.0f, 300), 0.0, 1e-4);
    fly(0.1f, 60);
    rig.clock.advance(5);
    EXPECT_NEAR(fly(0.0f, 1), 0.0, 1e-9) << "another flight";
}

/// The clock runs on while the datagrams of one frame are read; they all carry the time of the frame.
TEST_F(XPlaneSensorTest, aFloodInOneFrameCountsAsOneSample) {
    rig.clock.advance(1);
    const unsigned frameMs = MilliSecs();
    for (const float rate : {0.1f, 0.2f, 0.3f}) {
        const std::string bytes = XPlaneBytes().group(16, {0, 0, rate, 0, 0, 0, 0, 0}).text();
        sensor.OnDatagram(bytes.data(), bytes.size(), frameMs);
        rig.clock.advance(0.05);
    }
    EXPECT_NEAR(value(ISensorData::TurnRate), 5.7296, 1e-3);
}

TEST_F(XPlaneSensorTest, noOldOrDefaultValueIsShownAsFresh) {
    rig.clock.advance(0.5);
    EXPECT_EQ(warning(ISensorData::Altitude), ISensor::WRONG) << "half a second after the construction";
    take(3, {100, 0, 0, 100, 0, 0, 0, 0});
    EXPECT_EQ(warning(ISensorData::AirSpeed), ISensor::GOOD);
    EXPECT_EQ(warning(ISensorData::Altitude), ISensor::WRONG) << "its group never came";
    rig.clock.advance(0.9991);
    EXPECT_EQ(warning(ISensorData::AirSpeed), ISensor::GOOD);
    take(20, {1, 1, 1, 0, 0, 0, 0, 0});
    rig.clock.advance(0.001);
    EXPECT_EQ(warning(ISensorData::AirSpeed), ISensor::WRONG) << "its group came no more";
    EXPECT_EQ(warning(ISensorData::Altitude), ISensor::GOOD);
    rig.clock.advance(1.0);
    EXPECT_EQ(warning(ISensorData::Altitude), ISensor::WRONG);
}

TEST_F(XPlaneSensorTest, nothingImplausibleReachesARecord) {
    const std::array<float, 8> good{5, 5, 5, 5, 5, 5, 5, 5};
    const int groups[] = {1, 3, 6, 17, 18, 20, 21, 22, 23, 24, 99};
    for (const int group : groups)
        ASSERT_TRUE(take(group, good));
    take(16, {0, 0, 0.05f, 0, 0, 0, 0, 0});
    const auto forms = [&] {
        std::vector<std::string> all;
        for (const auto type : sensor.getSupportedDataTypes()) {
            int length = 0;
            const auto* form = static_cast<const char*>(sensor.getData(type)->serialize(&length));
            all.emplace_back(form, length);
        }
        return all;
    };
    const auto before = forms();
    rig.clock.advance(1.5);
    for (const float bad : {nan, infinity, -infinity, 3e38f, -3e38f}) {
        std::array<float, 8> values;
        values.fill(bad);
        for (const int group : groups)
            EXPECT_TRUE(take(group, values));
        take(16, values);
        EXPECT_EQ(forms(), before) << bad;
    }
    take(22, {5, 5, nan, 5, 5, 5, 5, 5});
    take(20, {5, 181 * 3, 5, 5, 5, 5, 5, 5});
    take(1, {0, 0, 0, 0, 0, 24, 0, 0});
    take(1, {0, 0, 0, 0, 0, -0.1f, 0, 0});
    for (const auto type : {ISensorData::Position, ISensorData::Traffic, ISensorData::Localizer})
        EXPECT_EQ(warning(type), ISensor::WRONG) << "values that were refused don't count as news";
    take(3, {nan, 0, 0, 77, 0, 0, 0, 0});
    EXPECT_DOUBLE_EQ(value(ISensorData::GroundSpeed), 77) << "the other record of the group is taken";
    EXPECT_DOUBLE_EQ(value(ISensorData::AirSpeed), 5);
}

TEST_F(XPlaneSensorTest, unknownGroupsAndWrongLengthsAreSkipped) {
    for (const int group : {-1, 0, 2, 7, 98, 100, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()})
        EXPECT_TRUE(take(group, {1, 2, 3, 4, 5, 6, 7, 8}));
    const std::string good = XPlaneBytes().group(17, {0, 0, 90, 0, 0, 0, 0, 0}).text();
    EXPECT_FALSE(take(good + "x"));
    EXPECT_FALSE(take(good.substr(0, 40)));
    EXPECT_FALSE(take(""));
    EXPECT_DOUBLE_EQ(value(ISensorData::Heading), 0);
    EXPECT_TRUE(take(good));
    EXPECT_DOUBLE_EQ(value(ISensorData::Heading), 90);
}

TEST_F(XPlaneSensorTest, aDatagramCostsNoAllocationFromTheSecondOn) {
    const auto flown = [](float step) {
        return XPlaneBytes()
            .group(1, {0, 0, 0, 0, 0, 12, 0, 0})
            .group(3, {100, 0, 0, 100, 0, 0, 0, 0})
            .group(6, {29, 0, 5, 0, 0, 0, 0, 0})
            .group(16, {0, 0, 0.01f, 0, 0, 0, 0, 0})
            .group(17, {1, 2, 3, 0, 0, 0, 0, 0})
            .group(20, {42, 1, 5000, 0, 0, 0, 0, 0})
            .group(22, {42 + step, 43 - step, 0, 0, 0, 0, 0, 0})
            .group(23, {1 + step, 2, 0, 0, 0, 0, 0, 0})
            .group(24, {5000, 6000, 0, 0, 0, 0, 0, 0})
            .group(99, {0, 0, 0, 0, 0, 1, 1, 0})
            .text();
    };
    std::vector<std::string> flight;
    for (int i = 0; i < 400; ++i)
        flight.push_back(flown(0.001f * static_cast<float>(i)));
    take(flight.front());
    AllocationCounter allocations;
    for (const std::string& bytes : flight) {
        rig.clock.advance(0.033);
        take(bytes);
    }
    EXPECT_EQ(allocations.count(), 0u);
}

TEST_F(XPlaneSensorTest, hearsTheNetworkAndTellsThatItIsNotReal) {
    EXPECT_TRUE(rig.host.boxes.empty());
    EXPECT_FALSE(sensor.Update());
    EXPECT_FALSE(sensor.Update());
    EXPECT_EQ(rig.host.boxes, (std::vector<std::string>{"XPlane Sensor Interface is in use.\nThe visualizations do NOT "
                                                        "represent the actual situation."}));
    IPv4UDPSocket sender;
    ASSERT_TRUE(sender.setUDPTarget({"127.0.0.1", sensor.getBoundPort()}));
    const auto send = [&](const std::string& bytes) { sender.send(bytes.data(), static_cast<unsigned>(bytes.size())); };
    send(XPlaneBytes().group(17, {0, 0, 90, 0, 0, 0, 0, 0}).text());
    send("");
    send("not for us");
    send(std::string(1500, 'x'));
    send(XPlaneBytes().group(3, {80, 0, 0, 70, 0, 0, 0, 0}).text());
    EXPECT_TRUE(sensor.Update());
    EXPECT_DOUBLE_EQ(value(ISensorData::Heading), 90);
    EXPECT_DOUBLE_EQ(value(ISensorData::AirSpeed), 80) << "an empty datagram doesn't end the reading";
    EXPECT_TRUE(sensor.lastTimeUpdated(ISensorData::Attitude));
    EXPECT_FALSE(sensor.lastTimeUpdated(ISensorData::Altitude));
    EXPECT_FALSE(sensor.Update());
    EXPECT_FALSE(sensor.lastTimeUpdated(ISensorData::Attitude));
    send("not for us");
    EXPECT_FALSE(sensor.Update());
}

TEST_F(XPlaneSensorTest, aTakenPortLeavesItWrong) {
    testing::internal::CaptureStdout();
    XPlaneSensor late(&factory, &rig.manager, ISensor::GOOD, sensor.getBoundPort(), 512);
    EXPECT_NE(testing::internal::GetCapturedStdout().find("XPlaneSensor bind failed.\n"), std::string::npos);
    EXPECT_EQ(late.getBoundPort(), -1);
    EXPECT_FALSE(late.Update());
    EXPECT_EQ(late.getWarning(ISensorData::Position), ISensor::WRONG);
}

} // namespace
} // namespace skyvane
