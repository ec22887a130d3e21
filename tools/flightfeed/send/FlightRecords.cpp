#include "flightfeed/send/FlightRecords.h"

#include "flightfeed/flight/CalendarTime.h"
#include "flightfeed/flight/FlightState.h"
#include "flightfeed/flight/Units.h"

#include <cmath>

namespace skyvane {

namespace {

constexpr uint32_t FIRST_TRAFFIC_ADDRESS = 0xA00001;
constexpr double FULL_DEFLECTION_DOTS = 2.5;

/// Two tones of which the left (or upper) side of the beam has more of the first: alike in the middle.
void setBeam(LocGs_Data& beam, double dots) {
    const double part = (dots + FULL_DEFLECTION_DOTS) / (2.0 * FULL_DEFLECTION_DOTS);
    constexpr double firstToneAtFullDeflection = 1.24; // what an instrument scales back
    beam.amplitude90Hz = static_cast<float>(firstToneAtFullDeflection * part);
    beam.amplitude150Hz = static_cast<float>(1.0 - part);
}

} // namespace

const std::vector<ISensorData*>& FlightRecords::take(const FlightState& state) {
    const auto timeMs = static_cast<unsigned>(std::llround(state.timeSeconds * 1000.0));
    current_ = {&gps_,           &attitude_, &heading_,  &acceleration_, &position_,      &altitude_,   &groundSpeed_,
                &verticalSpeed_, &turnRate_, &airSpeed_, &pressure_,     &cabinPressure_, &temperature_};
    takeGps(state, timeMs);
    takeMotion(state, timeMs);
    if (state.trafficCount > 0) {
        takeTraffic(state);
        current_.push_back(&traffic_);
    }
    if (state.hasIls && std::abs(state.localizerDots) < FULL_DEFLECTION_DOTS &&
        std::abs(state.glideslopeDots) < FULL_DEFLECTION_DOTS) {
        takeBeams(state);
        current_.insert(current_.end(), {&localizer_, &glideslope_});
    }
    return current_;
}

void FlightRecords::takeGps(const FlightState& s, unsigned timeMs) {
    const CalendarTime time = calendarTime(s.utcSeconds);
    gps_.hour = time.hour;
    gps_.minute = time.minute;
    gps_.second = time.second;
    gps_.millisecond = static_cast<int>(timeMs % 1000);
    gps_.timeStamp = timeMs;
    gps_.latitude = s.latitudeDegrees;
    gps_.longitude = s.longitudeDegrees;
    gps_.altitude = s.altitudeMetres;
    gps_.day = time.day;
    gps_.month = time.month;
    gps_.year = time.year;
    gps_.groundSpeed = s.groundSpeedKnots;
    gps_.groundTrack = s.groundTrackDegrees;
    gps_.fixQuality = 1;
    gps_.satelliteCount = 11;
    gps_.fixType = 3;
    gps_.pdop = 1.6;
    gps_.hdop = 0.9;
    gps_.vdop = 1.3;
    gps_.status = 1;
    gps_.timeAvailable = gps_.dateAvailable = gps_.positionAvailable = gps_.altitudeAvailable = true;
    gps_.dilutionOfPrecisionAvailable = gps_.speedAvailable = gps_.groundTrackAvailable = true;
}

void FlightRecords::takeMotion(const FlightState& s, unsigned timeMs) {
    attitude_ =
        Attitude_Data(createYawMatrix(toRadians(s.headingDegrees)) * createPitchMatrix(-toRadians(s.pitchDegrees)) *
                          createRollMatrix(-toRadians(s.rollDegrees)),
                      timeMs);
    acceleration_ = Acceleration_Data(-s.specificForceRight, s.specificForceDown, -s.specificForceForward);
    acceleration_.timeStamp = timeMs;
    position_ = Position_Data(s.longitudeDegrees, s.latitudeDegrees, timeMs);
    const auto set = [timeMs](ScalarData& record, double value) {
        record.value = value;
        record.timeStamp = timeMs;
    };
    set(heading_, s.headingDegrees);
    set(altitude_, s.altitudeMetres);
    set(groundSpeed_, s.groundSpeedKnots);
    set(verticalSpeed_, s.verticalSpeedMetresPerSecond);
    set(turnRate_, s.headingRateDegreesPerSecond);
    set(airSpeed_, s.indicatedAirspeedKnots);
    set(pressure_, s.pressureMillibars);
    set(cabinPressure_, s.pressureMillibars);
    set(temperature_, s.temperatureCelsius);
}

void FlightRecords::takeTraffic(const FlightState& s) {
    for (size_t i = 0; i < static_cast<size_t>(s.trafficCount); ++i) {
        const TrafficState& from = s.traffic[i];
        const uint32_t address = FIRST_TRAFFIC_ADDRESS + static_cast<uint32_t>(i);
        auto& target = traffic_.elements[address];
        if (!target)
            target = std::make_unique<TrafficElement>();
        target->icaoAddress = address;
        target->longitude = from.longitudeDegrees;
        target->latitude = from.latitudeDegrees;
        target->altitude = static_cast<int>(std::lround(from.altitudeMetres / METRES_PER_FOOT));
        target->velocity = static_cast<int>(std::lround(from.groundSpeedKnots));
        target->climbRate =
            static_cast<int>(std::lround(from.climbMetresPerSecond / METRES_PER_SECOND_PER_FOOT_PER_MINUTE));
        target->track = static_cast<float>(from.trackDegrees);
        target->name = from.name.empty() ? "FEED" + std::to_string(i + 1) : from.name;
    }
}

void FlightRecords::takeBeams(const FlightState& s) {
    setBeam(localizer_, s.localizerDots);
    setBeam(glideslope_, s.glideslopeDots);
}

} // namespace skyvane
