#include "flightfeed/send/XPlaneSender.h"

#include "core/bytes/ByteWriter.h"
#include "flightfeed/flight/CalendarTime.h"
#include "flightfeed/flight/Units.h"

#include <array>
#include <cmath>

namespace skyvane {

namespace {

constexpr size_t HEADER_BYTES = 5;
constexpr size_t GROUP_BYTES = 36;
constexpr size_t MOST_GROUPS = 12;
constexpr double MILLIBARS_PER_INCH_OF_MERCURY = 33.86383613011467;

using Values = std::array<double, 8>;

void writeGroup(ByteWriter& out, int index, const Values& values) {
    out.little<int32_t>(index);
    for (const double value : values)
        out.little<float>(static_cast<float>(value));
}

// A zero ends the list of aircraft, so that a true zero is sent as next to nothing.
double notZero(double value) {
    constexpr double nextToNothing = 1e-6;
    return std::abs(value) < nextToNothing ? nextToNothing : value;
}

void writeTraffic(ByteWriter& out, const FlightState& state) {
    Values latitudes{}, longitudes{}, altitudes{};
    for (size_t i = 0; i < static_cast<size_t>(state.trafficCount); ++i) {
        latitudes[i] = notZero(state.traffic[i].latitudeDegrees);
        longitudes[i] = notZero(state.traffic[i].longitudeDegrees);
        altitudes[i] = notZero(state.traffic[i].altitudeMetres / METRES_PER_FOOT);
    }
    writeGroup(out, 22, latitudes);
    writeGroup(out, 23, longitudes);
    writeGroup(out, 24, altitudes);
}

void writeGroups(ByteWriter& out, const FlightState& s) {
    const double hours = calendarTime(s.utcSeconds).hours;
    writeGroup(out, 1, {s.timeSeconds, s.timeSeconds, s.timeSeconds, 0.0, 0.0, hours, hours, 0.0});
    writeGroup(out, 3, {s.indicatedAirspeedKnots, s.indicatedAirspeedKnots, s.trueAirspeedKnots, s.groundSpeedKnots});
    writeGroup(out, 6,
               {s.pressureMillibars / MILLIBARS_PER_INCH_OF_MERCURY, s.temperatureCelsius, s.temperatureCelsius});
    writeGroup(out, 16,
               {s.pitchRateRadiansPerSecond, s.rollRateRadiansPerSecond, toRadians(s.headingRateDegreesPerSecond)});
    writeGroup(out, 17, {s.pitchDegrees, s.rollDegrees, s.headingDegrees, s.headingDegrees});
    writeGroup(out, 18, {0.0, 0.0, s.groundTrackDegrees, 0.0, 0.0, 0.0, 0.0, -ballAngleDegrees(s)});
    const double feet = s.altitudeMetres / METRES_PER_FOOT;
    writeGroup(out, 20, {s.latitudeDegrees, s.longitudeDegrees, feet, feet});
    writeGroup(out, 21,
               {0.0, 0.0, 0.0, s.velocityEastMetresPerSecond, s.verticalSpeedMetresPerSecond,
                -s.velocityNorthMetresPerSecond});
    if (s.trafficCount > 0)
        writeTraffic(out, s);
    if (s.hasIls)
        writeGroup(out, 99, {0.0, 0.0, 0.0, 0.0, 0.0, s.localizerDots, s.glideslopeDots});
}

} // namespace

void XPlaneSender::send(const FlightState& state, IDatagramSink& sink) {
    uint8_t buffer[HEADER_BYTES + MOST_GROUPS * GROUP_BYTES];
    ByteWriter out(buffer, sizeof(buffer));
    out.bytes("DATA*", HEADER_BYTES);
    writeGroups(out, state);
    sink.send(buffer, out.size());
}

} // namespace skyvane
