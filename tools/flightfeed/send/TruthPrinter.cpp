#include "flightfeed/send/TruthPrinter.h"

#include "core/text/Numbers.h"
#include "flightfeed/flight/Units.h"

namespace skyvane {

namespace {

struct Column {
    const char* name;
    double (*value)(const FlightState&);
    int decimals;
};

const Column COLUMNS[] = {
    {"time_s", [](const FlightState& s) { return s.timeSeconds; }, 3},
    {"utc_s", [](const FlightState& s) { return s.utcSeconds; }, 3},
    {"latitude_deg", [](const FlightState& s) { return s.latitudeDegrees; }, 8},
    {"longitude_deg", [](const FlightState& s) { return s.longitudeDegrees; }, 8},
    {"altitude_ft", [](const FlightState& s) { return s.altitudeMetres / METRES_PER_FOOT; }, 2},
    {"pitch_deg", [](const FlightState& s) { return s.pitchDegrees; }, 3},
    {"roll_deg", [](const FlightState& s) { return s.rollDegrees; }, 3},
    {"heading_deg", [](const FlightState& s) { return s.headingDegrees; }, 3},
    {"turn_rate_dps", [](const FlightState& s) { return s.headingRateDegreesPerSecond; }, 3},
    {"ias_kt", [](const FlightState& s) { return s.indicatedAirspeedKnots; }, 3},
    {"tas_kt", [](const FlightState& s) { return s.trueAirspeedKnots; }, 3},
    {"gs_kt", [](const FlightState& s) { return s.groundSpeedKnots; }, 3},
    {"track_deg", [](const FlightState& s) { return s.groundTrackDegrees; }, 3},
    {"vs_fpm",
     [](const FlightState& s) { return s.verticalSpeedMetresPerSecond / METRES_PER_SECOND_PER_FOOT_PER_MINUTE; }, 1},
    {"ball_deg", [](const FlightState& s) { return ballAngleDegrees(s); }, 3},
    {"force_forward_ms2", [](const FlightState& s) { return s.specificForceForward; }, 4},
    {"force_right_ms2", [](const FlightState& s) { return s.specificForceRight; }, 4},
    {"force_down_ms2", [](const FlightState& s) { return s.specificForceDown; }, 4},
    {"pressure_mb", [](const FlightState& s) { return s.pressureMillibars; }, 3},
    {"temperature_c", [](const FlightState& s) { return s.temperatureCelsius; }, 2},
    {"localizer_dots", [](const FlightState& s) { return s.localizerDots; }, 3},
    {"glideslope_dots", [](const FlightState& s) { return s.glideslopeDots; }, 3},
    {"on_ground", [](const FlightState& s) { return s.onGround ? 1.0 : 0.0; }, 0},
};

} // namespace

void TruthPrinter::printHeader() {
    const char* separator = "";
    for (const Column& column : COLUMNS) {
        out_ << separator << column.name;
        separator = ",";
    }
    out_ << '\n';
}

void TruthPrinter::print(const FlightState& state) {
    const char* separator = "";
    for (const Column& column : COLUMNS) {
        out_ << separator << toFixedText(column.value(state), column.decimals);
        separator = ",";
    }
    out_ << '\n' << std::flush;
}

} // namespace skyvane
