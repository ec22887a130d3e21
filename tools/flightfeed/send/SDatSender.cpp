#include "flightfeed/send/SDatSender.h"

#include "flightfeed/flight/CalendarTime.h"
#include "flightfeed/flight/Units.h"
#include "sensors/records/Acceleration_Data.h"
#include "sensors/records/AirSpeed_Data.h"
#include "sensors/records/Altitude_Data.h"
#include "sensors/records/Attitude_Data.h"
#include "sensors/records/GPS_Data.h"
#include "sensors/records/GroundSpeed_Data.h"
#include "sensors/records/Heading_Data.h"
#include "sensors/records/Position_Data.h"
#include "sensors/records/Pressure_Data.h"
#include "sensors/records/Temperature_Data.h"
#include "sensors/records/Traffic_Data.h"
#include "sensors/records/TurnRate_Data.h"
#include "sensors/records/VerticalSpeed_Data.h"
#include "sensors/udp/SDatPacket.h"

#include <cmath>

namespace skyvane {

namespace {

constexpr unsigned SEQUENCE_PERIOD_MS = 37;
constexpr uint32_t FIRST_TRAFFIC_ADDRESS = 0xA00001;

Attitude_Data attitudeOf(const FlightState& s, unsigned timeMs) {
    return Attitude_Data(createYawMatrix(toRadians(s.headingDegrees)) * createPitchMatrix(-toRadians(s.pitchDegrees)) *
                             createRollMatrix(-toRadians(s.rollDegrees)),
                         timeMs);
}

Acceleration_Data accelerationOf(const FlightState& s, unsigned timeMs) {
    Acceleration_Data record(-s.specificForceRight, s.specificForceDown, -s.specificForceForward);
    record.timeStamp = timeMs;
    return record;
}

GPS_Data gpsOf(const FlightState& s, unsigned timeMs) {
    const CalendarTime time = calendarTime(s.utcSeconds);
    GPS_Data gps;
    gps.hour = time.hour;
    gps.minute = time.minute;
    gps.second = time.second;
    gps.millisecond = static_cast<int>(timeMs % 1000);
    gps.timeStamp = timeMs;
    gps.latitude = s.latitudeDegrees;
    gps.longitude = s.longitudeDegrees;
    gps.altitude = s.altitudeMetres;
    gps.day = time.day;
    gps.month = time.month;
    gps.year = time.year;
    gps.groundSpeed = s.groundSpeedKnots;
    gps.groundTrack = s.groundTrackDegrees;
    return gps;
}

void fillTraffic(Traffic_Data& record, const FlightState& s) {
    for (size_t i = 0; i < static_cast<size_t>(s.trafficCount); ++i) {
        const TrafficState& from = s.traffic[i];
        auto target = std::make_unique<TrafficElement>();
        const uint32_t address = FIRST_TRAFFIC_ADDRESS + static_cast<uint32_t>(i);
        target->icaoAddress = address;
        target->longitude = from.longitudeDegrees;
        target->latitude = from.latitudeDegrees;
        target->altitude = static_cast<int>(std::lround(from.altitudeMetres / METRES_PER_FOOT));
        target->velocity = static_cast<int>(std::lround(from.groundSpeedKnots));
        target->track = static_cast<float>(from.trackDegrees);
        target->name = "FEED" + std::to_string(i + 1);
        record.elements[address] = std::move(target);
    }
}

} // namespace

void SDatSender::add(ISensorData& record) {
    int length = 0;
    SDatPacket packet;
    packet.type = record.getType();
    packet.level = ISensor::GOOD;
    packet.sequenceNumber = sequenceNumber_;
    packet.form = static_cast<const uint8_t*>(record.serialize(&length));
    packet.length = static_cast<size_t>(length);
    const size_t place = datagram_.size();
    datagram_.resize(place + packet.bytes());
    packet.write(datagram_.data() + place);
}

void SDatSender::send(const FlightState& s, IDatagramSink& sink) {
    const auto timeMs = static_cast<unsigned>(std::llround(s.timeSeconds * 1000.0));
    sequenceNumber_ = static_cast<uint8_t>(timeMs / SEQUENCE_PERIOD_MS);
    datagram_.clear();
    auto attitude = attitudeOf(s, timeMs);
    auto acceleration = accelerationOf(s, timeMs);
    auto gps = gpsOf(s, timeMs);
    Heading_Data heading(s.headingDegrees, timeMs);
    Position_Data position(s.longitudeDegrees, s.latitudeDegrees, timeMs);
    Altitude_Data altitude(s.altitudeMetres, timeMs);
    GroundSpeed_Data groundSpeed(s.groundSpeedKnots, timeMs);
    VerticalSpeed_Data verticalSpeed(s.verticalSpeedMetresPerSecond, timeMs);
    TurnRate_Data turnRate(s.headingRateDegreesPerSecond, timeMs);
    AirSpeed_Data airSpeed(s.indicatedAirspeedKnots, timeMs);
    Pressure_Data pressure(s.pressureMillibars, false, timeMs);
    Temperature_Data temperature(s.temperatureCelsius, false, timeMs);
    for (ISensorData* record : std::initializer_list<ISensorData*>{&gps, &attitude, &heading, &acceleration, &position,
                                                                   &altitude, &groundSpeed, &verticalSpeed, &turnRate,
                                                                   &airSpeed, &pressure, &temperature})
        add(*record);
    Traffic_Data traffic;
    fillTraffic(traffic, s);
    if (s.trafficCount > 0)
        add(traffic);
    sink.send(datagram_.data(), datagram_.size());
}

} // namespace skyvane
