#include "flightfeed/send/GDL90Sender.h"

#include "flightfeed/send/ProtocolList.h"
#include "sensors/SensorFakes.h"
#include "sensors/gdl90/GDL90Sensor.h"
#include "sensors/gdl90/GDL90SensorFactory.h"
#include "sensors/records/Traffic_Data.h"

#include <gtest/gtest.h>

using namespace skyvane;

namespace {

constexpr size_t MOST_BYTES = 1400; // what a network carries in one piece

/// A receiver's box and the program, without a network between them.
struct Box : IDatagramSink {
    ManagerRig rig;
    GDL90SensorFactory factory{&rig.manager, nullptr, nullptr};
    GDL90Sensor sensor;
    std::unique_ptr<IProtocolSender> sender;
    FlightState state;
    size_t uplinks = 0;

    Box(const std::string& protocol, GDL90Flavor flavor)
        : sensor(&factory, &rig.manager, 0, flavor), sender(findProtocol(protocol)->make()) {
        state.latitudeDegrees = 42.5;
        state.longitudeDegrees = -28.25;
        state.altitudeMetres = 1000.0;
        state.rollDegrees = -20.0;
        state.pitchDegrees = 5.0;
        state.headingDegrees = state.groundTrackDegrees = 271.0;
        state.headingRateDegreesPerSecond = -3.0;
        state.groundSpeedKnots = 110.0;
        state.indicatedAirspeedKnots = 100.0;
        state.trueAirspeedKnots = 105.0;
        state.pressureMillibars = 898.7;
        state.temperatureCelsius = 9.0;
        state.trafficCount = 8;
        state.traffic[7].latitudeDegrees = 42.75;
        state.traffic[7].altitudeMetres = 304.8;
    }
    void send(const void* bytes, size_t count) override {
        EXPECT_LE(count, MOST_BYTES);
        sensor.OnDatagram(static_cast<const uint8_t*>(bytes), count);
    }
    void fly(double seconds) {
        for (double passed = 0.0; passed < seconds; passed += 0.1) {
            rig.clock.advance(0.1);
            state.timeSeconds += 0.1;
            state.utcSeconds += 0.1;
            sensor.Update();
            sender->send(state, *this);
            uplinks += dynamic_cast<UATUplink_Data&>(*sensor.getData(ISensorData::UATUplink)).messages.size();
        }
    }
    double value(ISensorData::Type type) { return dynamic_cast<ScalarData&>(*sensor.getData(type)).value; }
    bool isGood(ISensorData::Type type) { return sensor.getWarning(type) == ISensor::GOOD; }
    void expectFlight() {
        const auto up = dynamic_cast<Attitude_Data&>(*sensor.getData(ISensorData::Attitude)).matrix;
        const Matrix3x3 expected = createYawMatrix(271.0 / 57.29577950560105) *
                                   createPitchMatrix(-5.0 / 57.29577950560105) *
                                   createRollMatrix(20.0 / 57.29577950560105);
        for (int i = 0; i < 9; ++i)
            EXPECT_NEAR(up.data()[i], expected.data()[i], 0.02) << i;
        const auto& place = dynamic_cast<Position_Data&>(*sensor.getData(ISensorData::Position));
        EXPECT_NEAR(place.longitude, 331.75, 3e-5);
        EXPECT_NEAR(place.latitude, 42.5, 3e-5);
        EXPECT_NEAR(value(ISensorData::Heading), 271.0, 1.0);
        EXPECT_NEAR(value(ISensorData::GroundSpeed), 110.0, 0.5);
        EXPECT_NEAR(value(ISensorData::AirSpeed), 100.0, 0.5);
        EXPECT_NEAR(value(ISensorData::Altitude), 1000.0, 1.0) << "whatever it was sent above";
        for (const auto type : {ISensorData::Attitude, ISensorData::Heading, ISensorData::Position,
                                ISensorData::GroundSpeed, ISensorData::AirSpeed, ISensorData::Altitude,
                                ISensorData::VerticalSpeed, ISensorData::Traffic, ISensorData::UATUplink})
            EXPECT_TRUE(isGood(type)) << type;
        const auto& traffic = dynamic_cast<Traffic_Data&>(*sensor.getData(ISensorData::Traffic)).elements;
        ASSERT_EQ(traffic.size(), 8u);
        EXPECT_EQ(traffic.rbegin()->second->altitude, 1000);
        EXPECT_EQ(traffic.rbegin()->second->name, "FEED8");
        EXPECT_EQ(uplinks, 3u);
    }
};

TEST(GDL90Sender, stratux) {
    Box box("gdl90", GDL90Flavor::Generic);
    box.fly(12.0);
    box.expectFlight();
    EXPECT_EQ(box.sensor.getSensorDetails(), "Skyvane connected");
    EXPECT_NEAR(box.value(ISensorData::TurnRate), -3.0, 1e-6);
    EXPECT_NEAR(dynamic_cast<Acceleration_Data&>(*box.sensor.getData(ISensorData::Acceleration)).y, -9.81, 1e-6);
}

TEST(GDL90Sender, foreFlight) {
    Box box("gdl90-foreflight", GDL90Flavor::UAvionix);
    box.fly(12.0);
    box.expectFlight();
    EXPECT_FALSE(box.isGood(ISensorData::Acceleration));
}

TEST(GDL90Sender, levil) {
    Box box("gdl90-levil", GDL90Flavor::Levil);
    box.fly(12.0);
    box.expectFlight();
    EXPECT_NEAR(box.value(ISensorData::OutsideTemperature), 9.0, 0.5);
    EXPECT_NEAR(dynamic_cast<AngleOfAttack_Data&>(*box.sensor.getData(ISensorData::AngleOfAttack)).angle, 0.31, 0.01);
}

TEST(GDL90Sender, talos) {
    Box box("gdl90-talos", GDL90Flavor::Talos);
    box.fly(12.0);
    box.expectFlight();
    EXPECT_TRUE(box.isGood(ISensorData::GPS));
    EXPECT_NEAR(box.value(ISensorData::TurnRate), -3.0, 0.01);
    EXPECT_NEAR(box.value(ISensorData::OutsidePressure), 898.7, 0.01);
    EXPECT_NEAR(box.value(ISensorData::OutsideTemperature), 9.0, 0.01);
    EXPECT_NEAR(dynamic_cast<Acceleration_Data&>(*box.sensor.getData(ISensorData::Acceleration)).y, -9.81, 1e-3);
}

} // namespace
