#include "sensors/gdl90/GDL90Sensor.h"

#include "chart/geodesy/Barometry.h"
#include "chart/geodesy/Geoid.h"
#include "sensors/FakeDialogs.h"
#include "sensors/SensorFakes.h"
#include "sensors/gdl90/GDL90Bytes.h"
#include "sensors/gdl90/GDL90SensorFactory.h"
#include "sensors/transport/IPv4UDPSocket.h"
#include "support/AllocationCounter.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cmath>
#include <random>
#include <thread>

namespace skyvane {
namespace {

struct GDL90SensorTest : testing::Test {
    ManagerRig rig;
    FakeDialogs dialogs;
    int windows = 0;
    GDL90SensorFactory factory{&rig.manager, &dialogs, [this](GDL90Sensor&) { ++windows; }};
    std::unique_ptr<GDL90Sensor> sensor = make(GDL90Flavor::Generic);

    void SetUp() override { rig.clock.advance(100.0); }
    std::unique_ptr<GDL90Sensor> make(GDL90Flavor flavor) {
        return std::make_unique<GDL90Sensor>(&factory, &rig.manager, 0, flavor);
    }
    void take(const Bytes& message) { takeStream(frameOf(message)); }
    void takeStream(const Bytes& stream) { sensor->OnDatagram(stream.data(), stream.size()); }
    /// The messages, again and again for some seconds.
    void fly(double seconds, const std::vector<Bytes>& messages) {
        for (double passed = 0.0; passed < seconds - 1e-9; passed += 0.1) {
            rig.clock.advance(0.1);
            sensor->Update();
            for (const Bytes& message : messages)
                take(message);
        }
    }
    void beSilent(double seconds) {
        rig.clock.advance(seconds);
        sensor->Update();
    }
    ISensor::WarningLevel warning(ISensorData::Type type) { return sensor->getWarning(type); }
    template <class T>
    T& record(ISensorData::Type type) {
        return dynamic_cast<T&>(*sensor->getData(type));
    }
    double value(ISensorData::Type type) { return record<ScalarData>(type).value; }
    Traffic_Data& traffic() { return record<Traffic_Data>(ISensorData::Traffic); }

    static Bytes ownShip(uint8_t misc = 9, uint8_t track = 64) {
        ReportFields fields;
        fields.id = 10;
        fields.misc = misc;
        fields.track = track;
        return fields.bytes();
    }
    static Bytes geoAlt(int fiveFeet) { return Bytes{11} + big16(fiveFeet) + big16(0); }
    static Bytes device(bool isMeanSeaLevel) {
        Bytes id{0x65, 0, 1};
        id.resize(39);
        id[11] = 'X';
        id[38] = isMeanSeaLevel ? 1 : 0;
        return id;
    }
};

TEST_F(GDL90SensorTest, everyTypeIsWrongUntilItsOwnDataCame) {
    for (const ISensorData::Type type : sensor->getSupportedDataTypes())
        EXPECT_EQ(warning(type), ISensor::WRONG) << type;
    EXPECT_EQ(sensor->getSupportedDataTypes().size(), 17u);
    EXPECT_EQ(sensor->getData(ISensorData::InsideTemperature), nullptr);
    take({0, 0, 0, 0, 0, 0, 0});
    EXPECT_TRUE(sensor->isConnected());
    EXPECT_EQ(rig.host.texts(), std::vector<std::string>{"Connection established."});
    for (const ISensorData::Type type : sensor->getSupportedDataTypes())
        EXPECT_EQ(warning(type), ISensor::WRONG) << type;
    take(ownShip());
    for (const auto type : {ISensorData::Position, ISensorData::GroundSpeed, ISensorData::VerticalSpeed,
                            ISensorData::InsidePressure, ISensorData::Heading})
        EXPECT_EQ(warning(type), ISensor::GOOD) << type;
    for (const auto type : {ISensorData::Attitude, ISensorData::Altitude, ISensorData::Acceleration,
                            ISensorData::TurnRate, ISensorData::OutsidePressure, ISensorData::Traffic})
        EXPECT_EQ(warning(type), ISensor::WRONG) << type;
    EXPECT_NEAR(record<Position_Data>(ISensorData::Position).longitude, 337.5, 1e-9);
    EXPECT_NEAR(value(ISensorData::InsidePressure), calcPressureFromAltitude(914.4, 1013.25), 1e-9);
}

TEST_F(GDL90SensorTest, silenceAndTheAgeOfEachSource) {
    const Bytes heartbeat{0, 0, 0, 0, 0, 0, 0};
    fly(0.5, {ownShip(), geoAlt(600), stratuxBytes(100, 50, 900)});
    EXPECT_EQ(warning(ISensorData::Attitude), ISensor::GOOD);
    fly(1.8, {heartbeat});
    EXPECT_EQ(warning(ISensorData::Attitude), ISensor::GOOD) << "younger than two seconds";
    fly(0.4, {heartbeat});
    for (const ISensorData::Type type : sensor->getSupportedDataTypes())
        EXPECT_EQ(warning(type), ISensor::WRONG) << type;
    EXPECT_NEAR(value(ISensorData::Heading), 90.0, 1e-3) << "records keep their values";
    take(ownShip());
    beSilent(1.0);
    EXPECT_EQ(warning(ISensorData::Position), ISensor::GOOD);
    beSilent(0.01);
    EXPECT_EQ(warning(ISensorData::Position), ISensor::WRONG);
    EXPECT_EQ(rig.host.texts(), std::vector<std::string>{"Connection lost."});
    take(heartbeat);
    EXPECT_EQ(warning(ISensorData::Traffic), ISensor::WRONG);
}

TEST_F(GDL90SensorTest, attitudeAndTheOffsetsOfTheCalibration) {
    take(stratuxBytes(200, 100, 0x7FFF));
    EXPECT_EQ(warning(ISensorData::Attitude), ISensor::WRONG) << "nobody knows where it points";
    fly(0.1, {stratuxBytes(200, 100, 900)});
    const auto attitude = [this] { return record<Attitude_Data>(ISensorData::Attitude).matrix; };
    EXPECT_NEAR(attitude().getForwardVector().X, std::cos(10.0 / 57.29577950560105), 1e-6) << "east";
    EXPECT_GT(attitude().getForwardVector().Y, 0.17) << "nose up";
    EXPECT_LT(attitude()(1, 0), -0.3) << "right wing down";
    sensor->setCalibration({20.0, 10.0, GDL90Calibration::AltitudeAuto});
    fly(0.1, {stratuxBytes(200, 100, 900)});
    EXPECT_NEAR(attitude().getUpVector().Y, 1.0, 1e-9) << "level now";
    fly(0.1, {stratuxBytes(200, 0x7FFF, 900)});
    EXPECT_EQ(warning(ISensorData::Attitude), ISensor::WRONG);
    fly(0.1, {stratuxBytes(20000, 100, 900)});
    EXPECT_EQ(warning(ISensorData::Attitude), ISensor::WRONG) << "a right check around nonsense";
}

TEST_F(GDL90SensorTest, whichHeadingCounts) {
    take(ownShip(10, 32));
    EXPECT_EQ(warning(ISensorData::Heading), ISensor::MAYBE_WRONG) << "magnetic";
    EXPECT_EQ(value(ISensorData::Heading), 45.0);
    take(ownShip(11, 64));
    EXPECT_EQ(value(ISensorData::Heading), 90.0) << "true before magnetic";
    EXPECT_EQ(record<ExtendedHeading_Data>(ISensorData::ExtendedHeading).trueHeading, 90.0f);
    take(ownShip(9, 96));
    EXPECT_EQ(value(ISensorData::Heading), 135.0) << "the track before both";
    take(stratuxBytes(0, 0, 1800));
    EXPECT_EQ(value(ISensorData::Heading), 180.0) << "a track that isn't told any more gives way to a live heading";
    EXPECT_EQ(warning(ISensorData::Attitude), ISensor::GOOD);
    fly(2.1, {stratuxBytes(0, 0, 0x7FFF)});
    EXPECT_EQ(warning(ISensorData::Heading), ISensor::WRONG) << "frozen";
    EXPECT_EQ(warning(ISensorData::Attitude), ISensor::MAYBE_WRONG) << "bank and pitch are live";
    fly(0.1, {stratuxBytes(0, 0, 9000)});
    EXPECT_EQ(warning(ISensorData::Heading), ISensor::WRONG) << "900 degrees";
}

TEST_F(GDL90SensorTest, theTurnFollowsTheHeadingWhenNobodyTellsIt) {
    for (int step = 0; step <= 40; ++step)
        fly(0.1, {ownShip(11, static_cast<uint8_t>(250 + step))});
    EXPECT_NEAR(value(ISensorData::TurnRate), 14.06, 0.1) << "through north";
    EXPECT_EQ(warning(ISensorData::TurnRate), ISensor::GOOD);
    int updates = 0;
    for (int i = 0; i < 20; ++i) {
        fly(0.1, {ownShip(11, 0)});
        updates += sensor->lastTimeUpdated(ISensorData::TurnRate) ? 1 : 0;
    }
    EXPECT_LE(updates, 2) << "at its steps only";
    fly(0.1, {stratuxBytes(0, 0, 0)});
    EXPECT_NEAR(value(ISensorData::TurnRate), -3.0, 1e-9);
}

TEST_F(GDL90SensorTest, accelerationPointsDownInLevelFlight) {
    take(stratuxBytes(0, 0, 0));
    EXPECT_NEAR(record<Acceleration_Data>(ISensorData::Acceleration).y, -9.81, 1e-9);
    EXPECT_NEAR(record<Acceleration_Data>(ISensorData::Acceleration).x, 0.1, 1e-9);
    fly(2.1, {talosBytes(0x3F, {1.0f, 2.0f, -9.81f})});
    const auto& talos = record<Acceleration_Data>(ISensorData::Acceleration);
    EXPECT_NEAR(talos.x, -2.0, 1e-6);
    EXPECT_NEAR(talos.y, -9.81, 1e-6);
    EXPECT_NEAR(talos.z, -1.0, 1e-6);
}

TEST_F(GDL90SensorTest, whatTheAltitudeIsAbove) {
    const double ellipsoid = 600 * 5 * 0.3048;
    const double meanSeaLevel = calcMSLFromWGS84Ellipsoid(ellipsoid, -22.5, 43.59375);
    ASSERT_GT(std::abs(ellipsoid - meanSeaLevel), 20.0);
    take(geoAlt(600));
    EXPECT_EQ(value(ISensorData::Altitude), ellipsoid) << "no place to convert it at";
    fly(0.1, {ownShip(), geoAlt(600)});
    EXPECT_NEAR(value(ISensorData::Altitude), meanSeaLevel, 1e-6);
    fly(2.5, {geoAlt(600)});
    EXPECT_NEAR(value(ISensorData::Altitude), meanSeaLevel, 1e-6) << "no jump when a report is lost";
    fly(0.1, {device(true), geoAlt(600)});
    EXPECT_EQ(value(ISensorData::Altitude), ellipsoid) << "the device says so";
    sensor->setCalibration({0.0, 0.0, GDL90Calibration::AltitudeEllipsoid});
    fly(0.1, {geoAlt(600)});
    EXPECT_NEAR(value(ISensorData::Altitude), meanSeaLevel, 1e-6);
    sensor->setCalibration({0.0, 0.0, GDL90Calibration::AltitudeMSL});
    fly(0.1, {device(false), geoAlt(600)});
    EXPECT_EQ(value(ISensorData::Altitude), ellipsoid);
    EXPECT_EQ(sensor->getSensorDetails(), "X connected");
}

TEST_F(GDL90SensorTest, aTalosDeviceIsItsOwnSource) {
    sensor = make(GDL90Flavor::Talos);
    EXPECT_EQ(sensor->getName(), "Talos Avionics Device");
    take(ownShip());
    EXPECT_EQ(warning(ISensorData::Position), ISensor::WRONG) << "own ship reports don't count";
    float pressure = 900.0f;
    for (int step = 0; step < 100; ++step, pressure -= 0.06f)
        fly(0.1, {talosGpsBytes(42.0f, -28.5f, 90.0f), talosBytes(0x3D, {pressure, 950.0f, 51.4444444f, 0, 0}),
                  talosBytes(0x3E, {0, 0, -0.0174532925f}), talosBytes(0x41, {11.5f}),
                  talosBytes(0x53, {5.0f, 0, 0, 0, 0, 0, 16.0f, 14.0f})});
    const auto& gps = record<GPS_Data>(ISensorData::GPS);
    EXPECT_TRUE(gps.positionAvailable && gps.timeAvailable && !gps.dilutionOfPrecisionAvailable);
    EXPECT_NEAR(gps.groundSpeed, 100.0, 1e-4);
    EXPECT_EQ(record<Position_Data>(ISensorData::Position).longitude, 331.5);
    EXPECT_NEAR(value(ISensorData::Heading), 90.0, 1e-6);
    EXPECT_NEAR(value(ISensorData::AirSpeed), 100.0, 1e-4);
    EXPECT_NEAR(value(ISensorData::TurnRate), 1.0, 1e-3);
    EXPECT_NEAR(value(ISensorData::VerticalSpeed), 5.5, 0.3);
    EXPECT_EQ(value(ISensorData::OutsideTemperature), 11.5);
    EXPECT_NEAR(value(ISensorData::OutsidePressure), 894.06, 0.01);
    EXPECT_EQ(warning(ISensorData::InsidePressure), ISensor::WRONG);
    EXPECT_EQ(record<AngleOfAttack_Data>(ISensorData::AngleOfAttack).maximum, 14.0f);
    EXPECT_EQ(record<AngleOfAttack_Data>(ISensorData::AngleOfAttack).inParts, 0u);
    sensor->Update();
    take({0, 0, 0, 0, 0, 0, 0});
    EXPECT_EQ(warning(ISensorData::VerticalSpeed), ISensor::GOOD) << "between two pressures";
    take(talosBytes(0x41, {std::numeric_limits<float>::quiet_NaN()}));
    EXPECT_EQ(warning(ISensorData::OutsideTemperature), ISensor::WRONG);
    EXPECT_EQ(value(ISensorData::OutsideTemperature), 11.5);
}

TEST_F(GDL90SensorTest, aLevilBoxMakesAPositionOfItsReports) {
    const Bytes status{0x4C, 0x45, 7, 0, 3, 9, 0, 120, 5, 0, 0};
    take(status);
    EXPECT_EQ(warning(ISensorData::GPS), ISensor::WRONG) << "no position";
    const Bytes attack = Bytes{0x4C, 0x45, 2, 0, 55, 109} + Bytes(20);
    fly(0.1, {ownShip(), geoAlt(600), status, attack});
    const auto& gps = record<GPS_Data>(ISensorData::GPS);
    EXPECT_TRUE(gps.positionAvailable && gps.altitudeAvailable && !gps.timeAvailable);
    EXPECT_EQ(gps.satelliteCount, 9);
    EXPECT_EQ(gps.groundTrack, 90.0);
    EXPECT_NEAR(value(ISensorData::OutsideTemperature), 15.0, 1e-9);
    EXPECT_NEAR(record<AngleOfAttack_Data>(ISensorData::AngleOfAttack).angle, 0.55, 1e-6);
    fly(0.1, {Bytes{0x4C, 0x45, 2, 0, 255, 255} + Bytes(20)});
    EXPECT_EQ(warning(ISensorData::OutsideTemperature), ISensor::WRONG) << "none measured";
    EXPECT_EQ(warning(ISensorData::AngleOfAttack), ISensor::WRONG);
}

TEST_F(GDL90SensorTest, uplinksAreHandedOnForOneFrame) {
    const Bytes uplink = Bytes{7, 0, 0, 0} + Bytes(432, 0x7E);
    takeStream(frameOf(uplink) + frameOf(uplink));
    auto& messages = record<UATUplink_Data>(ISensorData::UATUplink).messages;
    ASSERT_EQ(messages.size(), 2u);
    EXPECT_EQ(messages[1], Bytes(432, 0x7E));
    EXPECT_TRUE(sensor->lastTimeUpdated(ISensorData::UATUplink));
    sensor->Update();
    EXPECT_TRUE(messages.empty());
    EXPECT_FALSE(sensor->lastTimeUpdated(ISensorData::UATUplink));
    EXPECT_EQ(warning(ISensorData::UATUplink), ISensor::GOOD);
}

TEST_F(GDL90SensorTest, targetsComeAndGo) {
    ReportFields target;
    take(target.bytes());
    target.addressType = 2;
    target.climb = 10;
    take(target.bytes());
    ASSERT_EQ(traffic().elements.size(), 2u) << "the address type tells them apart";
    const TrafficElement& element = *traffic().elements.at(0x2ABCDEF);
    EXPECT_EQ(element.icaoAddress, 0xABCDEFu);
    EXPECT_EQ(element.altitude, 3000);
    EXPECT_EQ(element.velocity, 120);
    EXPECT_EQ(element.climbRate, 640);
    EXPECT_EQ(element.name, "N825V");
    EXPECT_NEAR(element.longitude, 337.5, 1e-9);
    fly(15.0, {});
    take(target.bytes());
    beSilent(5.1);
    ASSERT_EQ(traffic().elements.size(), 1u) << "20 seconds after its last report";
    EXPECT_EQ(traffic().elements.begin()->first, 0x2ABCDEFu);
    target.address = 1;
    target.accuracy = 0;
    target.latitude = target.longitude = 0;
    take(target.bytes());
    EXPECT_EQ(traffic().elements.size(), 1u) << "a target without a position";
}

TEST_F(GDL90SensorTest, anHoursTrafficInAMinute) {
    std::mt19937 random(3);
    std::map<uint32_t, int> lastSeconds; // the obvious twin
    size_t most = 0;
    for (int second = 0; second < 3600; ++second) {
        rig.clock.advance(1.0);
        sensor->Update();
        Bytes stream;
        for (int i = 0; i < 60; ++i) {
            ReportFields target;
            target.address = second / 30 + static_cast<int>(random() % 80);
            target.latitude = static_cast<int>(random() % 0x400000);
            stream = stream + frameOf(target.bytes());
            lastSeconds[static_cast<uint32_t>(target.address)] = second;
        }
        takeStream(stream);
        const auto isHeard = [second](const auto& entry) { return second - entry.second <= 20; };
        const auto heard = static_cast<size_t>(std::count_if(lastSeconds.begin(), lastSeconds.end(), isHeard));
        ASSERT_EQ(traffic().elements.size(), heard) << second;
        most = std::max(most, heard);
    }
    EXPECT_GT(most, 70u);
}

TEST_F(GDL90SensorTest, aFloodOfTargetsStopsAtTheCapAndSteadyTrafficAllocatesNothing) {
    Bytes stream;
    for (int i = 0; i < 5000; ++i) {
        ReportFields target;
        target.address = i;
        stream = stream + frameOf(target.bytes());
    }
    takeStream(stream);
    EXPECT_EQ(traffic().elements.size(), GDL90Traffic::MaxTargets);
    stream = stream + frameOf(ownShip()) + frameOf(stratuxBytes(1, 2, 3)) + frameOf(geoAlt(100));
    takeStream(stream);
    takeStream(stream);
    AllocationCounter allocations;
    for (int frame = 0; frame < 5; ++frame) {
        rig.clock.advance(0.036);
        sensor->Update();
        takeStream(stream);
    }
    EXPECT_EQ(allocations.count(), 0u);
}

TEST_F(GDL90SensorTest, aFloodOnTheNetworkLeavesTheSensorAlive) {
    IPv4UDPSocket sender;
    ASSERT_TRUE(sender.setUDPTarget({"127.0.0.1", sensor->getBoundPort()}));
    const auto send = [&sender](const Bytes& bytes) {
        sender.send(reinterpret_cast<const char*>(bytes.data()), static_cast<unsigned>(bytes.size()));
    };
    std::mt19937 random(9);
    Bytes garbage(1400);
    for (int i = 0; i < 3000; ++i) {
        for (uint8_t& byte : garbage)
            byte = static_cast<uint8_t>(random());
        send(garbage);
    }
    const auto update = [this] {
        rig.clock.advance(0.01);
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
        return sensor->Update();
    };
    for (int i = 0; i < 5000 && !update(); ++i) {
    }
    EXPECT_TRUE(sensor->isConnected());
    while (update()) {
    }
    const Bytes report = frameOf(ownShip());
    for (int i = 0; i < 5000 && warning(ISensorData::Position) != ISensor::GOOD; ++i) {
        send(report + report + report);
        update();
    }
    EXPECT_EQ(warning(ISensorData::Position), ISensor::GOOD);
}

TEST_F(GDL90SensorTest, theFactoryAsksAndReadsItsSetup) {
    IniFile ini;
    dialogs.onEdit = [](IniFile& edited) {
        edited.set("", "port", "4001");
        edited.set("", "flavor", "Talos");
    };
    EXPECT_TRUE(factory.setup(&ini, "S1"));
    EXPECT_EQ(dialogs.lastSchema, L"port,Port:,4000,INT;flavor,Flavor:,Generic\\;Talos\\;Levil\\;uAvionix,ONE_OF;");
    EXPECT_EQ(ini.get("S1", "port"), "4001");
    ini.set("S1", "port", "0");
    factory.loadSetupFromIni(&ini, "S1");
    EXPECT_EQ(factory.Create()->getName(), "Talos Avionics Device");
    ini.set("S1", "flavor", "Other");
    factory.loadSetupFromIni(&ini, "S1");
    EXPECT_EQ(factory.Create()->getName(), "GDL90 compatible device");
}

TEST_F(GDL90SensorTest, calibrationNeedsADevice) {
    EXPECT_TRUE(sensor->OnCalibrate());
    EXPECT_EQ(dialogs.told, std::vector<std::string>{"Error: GDL90 interface in use but no GDL90 device connected."});
    EXPECT_EQ(windows, 0);
    take({0, 0, 0, 0, 0, 0, 0});
    sensor->OnCalibrate();
    EXPECT_EQ(windows, 1);
}

} // namespace
} // namespace skyvane
