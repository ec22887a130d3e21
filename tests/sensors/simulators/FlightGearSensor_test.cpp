#include "sensors/simulators/FlightGearSensor.h"

#include "sensors/SensorFakes.h"
#include "sensors/simulators/FlightGearBytes.h"
#include "sensors/simulators/FlightGearSensorFactory.h"
#include "sensors/transport/IPv4UDPSocket.h"
#include "support/AllocationCounter.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace skyvane {
namespace {

constexpr double pi = 3.14159265358979;

struct FlightGearSensorTest : testing::Test {
    ManagerRig rig;
    FlightGearSensorFactory factory{&rig.manager};
    FlightGearSensor sensor{&factory, &rig.manager, 0};

    bool take(const FlightGearBytes& bytes) {
        return sensor.OnDatagram(bytes.text().data(), bytes.text().size(), MilliSecs());
    }
    template <class T>
    T& record(ISensorData::Type type) {
        return dynamic_cast<T&>(*sensor.getData(type));
    }
    double value(ISensorData::Type type) { return record<ScalarData>(type).value; }
};

TEST_F(FlightGearSensorTest, supportsItsTypesAndNoOther) {
    take(FlightGearBytes());
    for (int i = -1; i <= ISensorData::TypeCount; ++i) {
        const auto type = static_cast<ISensorData::Type>(i);
        const bool supported = (i >= 0 && i <= 9) || i == 11 || i == 13;
        EXPECT_EQ(sensor.isDataTypeSupported(type), supported) << i;
        EXPECT_EQ(sensor.getData(type) != nullptr, supported) << i;
        EXPECT_EQ(sensor.getWarning(type), supported ? ISensor::GOOD : ISensor::WRONG) << i;
        EXPECT_EQ(sensor.lastTimeUpdated(type), supported) << i;
    }
    EXPECT_EQ(factory.getName(), "FlightGear Flight Simulator");
    EXPECT_EQ(sensor.getName(), "FlightGearSensor");
}

TEST_F(FlightGearSensorTest, fillsTheRecords) {
    rig.clock.advance(12.345);
    take(FlightGearBytes()
             .number(0, 5 * pi / 180)
             .number(8, 1.5 * pi)
             .number(16, 20 * pi / 180)
             .number(48, 1)
             .number(56, 2)
             .number(112, -3)
             .whole(132, 34)
             .whole(136, 56));
    const auto& acceleration = record<Acceleration_Data>(ISensorData::Acceleration);
    EXPECT_EQ(acceleration.x, -2);
    EXPECT_EQ(acceleration.y, -9.81);
    EXPECT_EQ(acceleration.z, 1);
    EXPECT_EQ(acceleration.timeStamp, 12345u);
    EXPECT_EQ(value(ISensorData::AirSpeed), 95);
    EXPECT_EQ(value(ISensorData::Altitude), 1500);
    EXPECT_EQ(value(ISensorData::GroundSpeed), 90);
    EXPECT_EQ(value(ISensorData::VerticalSpeed), -3);
    EXPECT_EQ(value(ISensorData::OutsidePressure), 1000);
    EXPECT_EQ(value(ISensorData::OutsideTemperature), 15);
    EXPECT_NEAR(value(ISensorData::Heading), 270, 1e-6);
    EXPECT_EQ(record<Position_Data>(ISensorData::Position).latitude, 42.5);
    EXPECT_EQ(record<Position_Data>(ISensorData::Position).longitude, 1.25);
    const auto& gps = record<GPS_Data>(ISensorData::GPS);
    EXPECT_EQ(gps.hour * 10000 + gps.minute * 100 + gps.second, 123456);
    EXPECT_EQ(gps.millisecond, 345);
    EXPECT_EQ(gps.year * 10000 + gps.month * 100 + gps.day, 20240229);
    EXPECT_EQ(gps.altitude, 1500);
    EXPECT_EQ(gps.groundTrack, 45);
    EXPECT_EQ(gps.groundSpeed, 90);
    EXPECT_EQ(gps.pdop, 1);
    EXPECT_EQ(gps.satelliteCount, 99);
    EXPECT_TRUE(gps.dateAvailable && gps.speedAvailable && !gps.magneticVariationAvailable);
    const Matrix3x3& matrix = record<Attitude_Data>(ISensorData::Attitude).matrix;
    EXPECT_NEAR(matrix.getForwardVector().X, -std::cos(5 * pi / 180), 1e-6) << "towards west";
    EXPECT_NEAR(matrix.getForwardVector().Y, std::sin(5 * pi / 180), 1e-6) << "nose up";
    EXPECT_LT(matrix.column(0).Y, -0.3) << "right wing down";
}

TEST_F(FlightGearSensorTest, turnRateComesFromTheHeading) {
    double heading = 350;
    const auto fly = [&](double degreesPerSecond, double seconds) {
        for (double t = 0; t < seconds; t += 1 / 30.0) {
            rig.clock.advance(1 / 30.0);
            heading += degreesPerSecond / 30.0;
            take(FlightGearBytes().number(8, std::fmod(heading, 360) * pi / 180));
        }
        return value(ISensorData::TurnRate);
    };
    EXPECT_EQ(fly(3, 0.03), 0.0);
    EXPECT_NEAR(fly(3, 10), 3.0, 1e-6) << "through north, without a jump";
    EXPECT_NEAR(fly(0, 10), 0.0, 1e-6);
    rig.clock.advance(3);
    heading += 170;
    EXPECT_NEAR(fly(0, 1), 0.0, 1e-9) << "another flight began, the aircraft didn't turn";
}

TEST_F(FlightGearSensorTest, goesWrongASecondAfterTheLastDatagram) {
    EXPECT_FALSE(sensor.isConnected());
    EXPECT_EQ(sensor.getWarning(ISensorData::Attitude), ISensor::WRONG) << "nothing came yet";
    rig.clock.advance(0.25);
    take(FlightGearBytes());
    rig.clock.advance(0.999);
    EXPECT_TRUE(sensor.isConnected());
    EXPECT_EQ(sensor.getWarning(ISensorData::Attitude), ISensor::GOOD);
    rig.clock.advance(0.001);
    EXPECT_FALSE(sensor.isConnected());
    EXPECT_EQ(sensor.getWarning(ISensorData::Attitude), ISensor::WRONG);
    take(FlightGearBytes());
    EXPECT_EQ(sensor.getWarning(ISensorData::Attitude), ISensor::GOOD) << "the simulator was started again";
}

TEST_F(FlightGearSensorTest, aBadValueHoldsUpItsRecordsOnly) {
    const std::vector<std::pair<size_t, std::vector<ISensorData::Type>>> heldUp{
        {0, {ISensorData::Attitude}},
        {8, {ISensorData::Attitude, ISensorData::Heading, ISensorData::TurnRate}},
        {16, {ISensorData::Attitude}},
        {24, {}},
        {48, {ISensorData::Acceleration}},
        {56, {ISensorData::Acceleration}},
        {64, {ISensorData::Acceleration}},
        {72, {ISensorData::GPS}},
        {80, {ISensorData::GPS, ISensorData::GroundSpeed}},
        {88, {ISensorData::GPS, ISensorData::Altitude}},
        {96, {ISensorData::GPS, ISensorData::Position}},
        {104, {ISensorData::GPS, ISensorData::Position}},
        {112, {ISensorData::VerticalSpeed}},
        {120, {ISensorData::OutsideTemperature}},
        {152, {ISensorData::OutsidePressure}},
        {160, {ISensorData::AirSpeed}}};
    for (const double bad :
         {std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::infinity(), -1e300}) {
        for (const auto& entry : heldUp) {
            take(FlightGearBytes());
            rig.clock.advance(2);
            take(FlightGearBytes().number(entry.first, bad));
            for (const auto type : sensor.getSupportedDataTypes()) {
                const bool held = std::count(entry.second.begin(), entry.second.end(), type) > 0;
                EXPECT_EQ(sensor.getWarning(type), held ? ISensor::WRONG : ISensor::GOOD) << entry.first << " " << type;
                int length = 0;
                const auto* form = static_cast<const unsigned char*>(sensor.getData(type)->serialize(&length));
                const uint32_t stamp = type == ISensorData::GPS ? 16 : static_cast<uint32_t>(length) - 4;
                unsigned stamped = 0;
                std::memcpy(&stamped, form + stamp, 4);
                EXPECT_EQ(stamped, held ? MilliSecs() - 2000 : MilliSecs()) << entry.first << " " << type;
            }
        }
    }
    take(FlightGearBytes().whole(128, 24));
    take(FlightGearBytes().whole(144, 0));
    EXPECT_EQ(record<GPS_Data>(ISensorData::GPS).hour, 12);
    EXPECT_EQ(record<GPS_Data>(ISensorData::GPS).month, 2);
}

TEST_F(FlightGearSensorTest, hearsTheNetworkAndTellsThatItIsNotReal) {
    testing::internal::CaptureStdout();
    EXPECT_FALSE(sensor.Update());
    EXPECT_EQ(rig.host.boxes, (std::vector<std::string>{"FlightGear Sensor Interface is in use.\nThe visualizations do "
                                                        "NOT represent the actual situation."}));
    IPv4UDPSocket first, second;
    ASSERT_TRUE(first.setUDPTarget({"127.0.0.1", sensor.getBoundPort()}));
    ASSERT_TRUE(second.setUDPTarget(first.getUDPTarget()));
    const auto send = [](IPv4UDPSocket& sender, const std::string& bytes) {
        sender.send(bytes.data(), static_cast<unsigned>(bytes.size()));
    };
    send(first, std::string(167, 'x'));
    send(first, "");
    send(first, std::string(4000, 'x'));
    send(first, FlightGearBytes().number(88, 500).text());
    EXPECT_TRUE(sensor.Update());
    EXPECT_EQ(value(ISensorData::Altitude), 500);
    EXPECT_TRUE(sensor.lastTimeUpdated(ISensorData::Altitude));
    send(second, FlightGearBytes().number(88, 600).text());
    EXPECT_TRUE(sensor.Update());
    EXPECT_EQ(value(ISensorData::Altitude), 600) << "whoever sends";
    EXPECT_FALSE(sensor.Update());
    EXPECT_FALSE(sensor.lastTimeUpdated(ISensorData::Altitude));
    for (int i = 0; i < 100; ++i)
        send(first, "flood");
    EXPECT_FALSE(sensor.Update());
    const std::string log = testing::internal::GetCapturedStdout();
    EXPECT_EQ(log.find("FlightGearSocket #read bytes does not match the protocol: 167\n"), 0u) << log;
    EXPECT_NE(log.find("protocol: 1680\n"), std::string::npos) << "cut to the buffer";
    EXPECT_EQ(std::count(log.begin(), log.end(), '\n'), 10) << "a flood doesn't fill the disk";
}

TEST_F(FlightGearSensorTest, aTakenPortLeavesItWrong) {
    testing::internal::CaptureStdout();
    FlightGearSensor late(&factory, &rig.manager, sensor.getBoundPort());
    EXPECT_NE(testing::internal::GetCapturedStdout().find("FlightGearSocket bind failed.\n"), std::string::npos);
    EXPECT_FALSE(late.Update());
    EXPECT_FALSE(late.isConnected());
    EXPECT_EQ(late.getWarning(ISensorData::Position), ISensor::WRONG);
}

TEST_F(FlightGearSensorTest, aDatagramFromTheNetworkCostsNoAllocationFromTheSecondOn) {
    IPv4UDPSocket sender;
    ASSERT_TRUE(sender.setUDPTarget({"127.0.0.1", sensor.getBoundPort()}));
    const std::string bytes = FlightGearBytes().text();
    const auto frame = [&] {
        sender.send(bytes.data(), static_cast<unsigned>(bytes.size()));
        rig.clock.advance(1 / 30.0);
        return sensor.Update();
    };
    frame();
    AllocationCounter allocations;
    for (int i = 0; i < 400; ++i)
        frame();
    EXPECT_EQ(allocations.count(), 0u);
}

} // namespace
} // namespace skyvane
