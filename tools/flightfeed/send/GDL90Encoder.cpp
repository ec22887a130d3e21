#include "flightfeed/send/GDL90Encoder.h"

#include "flightfeed/flight/CalendarTime.h"
#include "flightfeed/flight/Units.h"
#include "flightfeed/send/GDL90Fields.h"
#include "sensors/gdl90/GDL90FrameWriter.h"

#include <algorithm>
#include <cmath>

namespace skyvane {

namespace {

constexpr double METRES_PER_SECOND_PER_CLIMB_UNIT = 64.0 * METRES_PER_SECOND_PER_FOOT_PER_MINUTE;
constexpr int NO_CLIMB = 0x800;
constexpr uint8_t TRUE_TRACK = 1, AIRBORNE = 8;
constexpr uint8_t GOOD_ACCURACY = 0x88;

double feet(double metres) {
    return metres / METRES_PER_FOOT;
}

/// What own ship and traffic reports have in common, from the address on.
struct Report {
    uint32_t address;
    double latitudeDegrees, longitudeDegrees, altitudeMetres, groundSpeedKnots, trackDegrees;
    int climb; ///< units of 64 feet per minute, or NO_CLIMB
    bool onGround;
    std::string name;
};

std::vector<uint8_t> reportMessage(uint8_t id, const Report& report) {
    constexpr double degreesPerUnit = 180.0 / 8388608.0;
    GDL90Fields out(id);
    const int altitude = static_cast<int>(rounded((feet(report.altitudeMetres) + 1000.0) / 25.0, 0.0, 4094.0));
    const int speed = static_cast<int>(rounded(report.groundSpeedKnots, 0.0, 4094.0));
    out.byte(0).big24(report.address);
    out.big24(static_cast<uint32_t>(std::lround(report.latitudeDegrees / degreesPerUnit)));
    out.big24(static_cast<uint32_t>(std::lround(wrapDegrees180(report.longitudeDegrees) / degreesPerUnit)));
    out.byte(altitude >> 4).byte((altitude & 0x0F) << 4 | TRUE_TRACK | (report.onGround ? 0 : AIRBORNE));
    out.byte(GOOD_ACCURACY);
    out.byte(speed >> 4).byte((speed & 0x0F) << 4 | ((report.climb >> 8) & 0x0F)).byte(report.climb & 0xFF);
    out.byte(static_cast<int>(std::lround(wrapDegrees360(report.trackDegrees) * 256.0 / 360.0)) & 0xFF);
    out.byte(1).text(report.name, 8).byte(0);
    return out.bytes();
}

} // namespace

void GDL90Encoder::append(const std::vector<uint8_t>& message) {
    appendGDL90Frame(frames_, message.data(), message.size());
}

void GDL90Encoder::heartbeat(const FlightState& state) {
    const int seconds = static_cast<int>(calendarTime(state.utcSeconds).hours * 3600.0) % 86400;
    append(
        GDL90Fields(0).byte(0x81).byte(seconds > 0xFFFF ? 0x81 : 0x01).little16(seconds & 0xFFFF).little16(0).bytes());
}

void GDL90Encoder::ownShip(const FlightState& s) {
    const int climb =
        static_cast<int>(rounded(s.verticalSpeedMetresPerSecond / METRES_PER_SECOND_PER_CLIMB_UNIT, -510.0, 510.0));
    append(reportMessage(10, {0xABCDEF, s.latitudeDegrees, s.longitudeDegrees, s.altitudeMetres, s.groundSpeedKnots,
                              s.groundTrackDegrees, climb & 0xFFF, s.onGround, "SKYVANE"}));
}

void GDL90Encoder::traffic(const TrafficState& t, int number) {
    append(reportMessage(20, {FIRST_TRAFFIC_ADDRESS + static_cast<uint32_t>(number), t.latitudeDegrees,
                              t.longitudeDegrees, t.altitudeMetres, t.groundSpeedKnots, t.trackDegrees, NO_CLIMB, false,
                              "FEED" + std::to_string(number + 1)}));
}

void GDL90Encoder::geometricAltitude(double altitudeMetres) {
    append(GDL90Fields(11).scaled(feet(altitudeMetres), 5.0).big16(0x0002).bytes());
}

void GDL90Encoder::foreFlightId(bool isMeanSeaLevel) {
    GDL90Fields out(0x65);
    out.byte(0).byte(1).big16(0).big16(0).big16(0).big16(90).text("Skyvane", 8).text("flightfeed", 16);
    append(out.big16(0).byte(0).byte(isMeanSeaLevel ? 1 : 0).bytes());
}

void GDL90Encoder::foreFlightAhrs(const FlightState& s) {
    GDL90Fields out(0x65);
    out.byte(1).scaled(s.rollDegrees, 0.1).scaled(s.pitchDegrees, 0.1);
    out.scaled(wrapDegrees360(s.headingDegrees), 0.1);
    append(out.scaled(s.indicatedAirspeedKnots, 1.0).scaled(s.trueAirspeedKnots, 1.0).bytes());
}

void GDL90Encoder::stratuxHeartbeat() {
    append(GDL90Fields(204).byte(1 << 2 | 0x03).bytes());
}

void GDL90Encoder::stratuxAhrs(const FlightState& s) {
    GDL90Fields out(0x4C);
    out.byte(0x45).byte(1).byte(1);
    out.scaled(s.rollDegrees, 0.1).scaled(s.pitchDegrees, 0.1).scaled(wrapDegrees360(s.headingDegrees), 0.1);
    out.scaled(-s.specificForceRight, 0.01).scaled(s.headingRateDegreesPerSecond, 0.1);
    out.scaled(-s.specificForceDown, 0.981).scaled(s.indicatedAirspeedKnots, 1.0);
    out.big16(static_cast<int>(rounded(feet(s.altitudeMetres) + 5000.5, 0.0, 65534.0)));
    append(out.scaled(s.verticalSpeedMetresPerSecond, METRES_PER_SECOND_PER_FOOT_PER_MINUTE).big16(0).bytes());
}

void GDL90Encoder::levilAngleOfAttack(const FlightState& s) {
    GDL90Fields out(0x4C);
    const double parts = std::clamp(angleOfAttackDegrees(s) / STALL_DEGREES, 0.0, 2.5);
    out.byte(0x45).byte(2).byte(0).byte(static_cast<int>(std::lround(parts * 100.0)));
    out.byte(static_cast<int>(rounded(s.temperatureCelsius * 1.8 + 82.0, 0.0, 254.0)));
    append(out.byte(0).big16(0).big16(0).zeros(14).bytes());
}

void GDL90Encoder::levilGpsStatus() {
    append(GDL90Fields(0x4C).byte(0x45).byte(7).byte(0).byte(3).byte(11).big16(120).byte(5).big16(0).bytes());
}

void GDL90Encoder::talosMessage(uint8_t id, const FlightState& s, const std::vector<float>& values) {
    GDL90Fields out(id);
    out.byte(1).zeros(7).little64(static_cast<uint64_t>(std::llround(s.timeSeconds * 1e6)));
    for (const float value : values)
        out.littleFloat(value);
    append(out.bytes());
}

void GDL90Encoder::talos(const FlightState& s) {
    const auto single = [](double value) { return static_cast<float>(value); };
    const double airspeed = s.indicatedAirspeedKnots * METRES_PER_SECOND_PER_KNOT;
    const double dynamicMillibars = 0.5 * 1.225 * airspeed * airspeed / 100.0;
    talosMessage(
        0x3D, s,
        {single(s.pressureMillibars), single(s.pressureMillibars + dynamicMillibars), single(airspeed), 0.0f, 0.0f});
    talosMessage(0x3E, s, {0.0f, 0.0f, single(-toRadians(s.headingRateDegreesPerSecond))});
    talosMessage(0x3F, s, {single(s.specificForceForward), single(s.specificForceRight), single(s.specificForceDown)});
    talosMessage(0x41, s, {single(s.temperatureCelsius)});
    const float attack = single(angleOfAttackDegrees(s));
    talosMessage(0x53, s, {attack, 0, 0, 0, 0, 0, single(STALL_DEGREES), single(STALL_DEGREES - 2.0)});
    talosGps(s);
}

void GDL90Encoder::talosGps(const FlightState& s) {
    const CalendarTime time = calendarTime(s.utcSeconds);
    GDL90Fields out(0x42);
    const int milliseconds = static_cast<int>(std::fmod(s.utcSeconds, 1.0) * 1000.0);
    out.byte(1).byte(1).byte(12).byte(time.hour).byte(time.minute).byte(time.second);
    out.byte(milliseconds % 255).byte(milliseconds / 255);
    out.little64(static_cast<uint64_t>(std::llround(s.timeSeconds * 1e6)));
    for (const double value : {s.latitudeDegrees, s.longitudeDegrees, s.altitudeMetres,
                               s.groundSpeedKnots * METRES_PER_SECOND_PER_KNOT, s.groundTrackDegrees})
        out.littleFloat(static_cast<float>(value));
    append(out.bytes());
}

void GDL90Encoder::uplink(const FlightState& s, const std::string& text) {
    append(uplinkMessage(s, text));
}

} // namespace skyvane
