#include "flightfeed/send/SDatSender.h"

#include "sensors/SensorFakes.h"
#include "sensors/records/Acceleration_Data.h"
#include "sensors/records/GPS_Data.h"
#include "sensors/records/Traffic_Data.h"
#include "sensors/udp/UDPSensorFactory.h"

#include <gtest/gtest.h>

using namespace skyvane;

namespace {

struct Receiver : IDatagramSink {
    explicit Receiver(UDPSensor& receiver) : sensor(receiver) {}
    void send(const void* bytes, size_t count) override {
        arrived = sensor.OnDatagram(static_cast<const uint8_t*>(bytes), count);
    }
    UDPSensor& sensor;
    bool arrived = false;
};

TEST(SDatSender, sendsWhatTheReceiverTakes) {
    ManagerRig rig;
    UDPSensorFactory factory(&rig.manager, nullptr);
    UDPSensor sensor(&rig.manager, UDPSensorOptions(), factory.getSupportedDataTypes());
    Receiver receiver(sensor);
    SDatSender sender;
    FlightState state;
    state.latitudeDegrees = 42.5;
    state.longitudeDegrees = -28.25;
    state.altitudeMetres = 1000.0;
    state.headingDegrees = 90.0;
    state.trafficCount = 2;
    state.traffic[1].altitudeMetres = 304.8;
    for (int step = 0; step < 1000; ++step) {
        state.timeSeconds = 0.05 * step;
        sender.send(state, receiver);
        ASSERT_TRUE(receiver.arrived) << step;
    }
    auto& gps = dynamic_cast<GPS_Data&>(*sensor.getData(ISensorData::GPS));
    EXPECT_EQ(gps.latitude, 42.5);
    EXPECT_EQ(gps.longitude, -28.25);
    auto& force = dynamic_cast<Acceleration_Data&>(*sensor.getData(ISensorData::Acceleration));
    EXPECT_EQ(force.y, -9.81) << "level flight";
    auto& traffic = dynamic_cast<Traffic_Data&>(*sensor.getData(ISensorData::Traffic));
    ASSERT_EQ(traffic.elements.size(), 2u);
    EXPECT_EQ(traffic.elements.rbegin()->second->altitude, 1000);
    int updated = 0;
    for (int type = 0; type < ISensorData::TypeCount; ++type)
        updated += sensor.lastTimeUpdated(static_cast<ISensorData::Type>(type)) ? 1 : 0;
    EXPECT_EQ(updated, 14);
}

} // namespace
