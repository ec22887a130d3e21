#include "flightfeed/flight/HeldState.h"

#include "core/text/StrictNumber.h"
#include "flightfeed/flight/BodyFrame.h"
#include "flightfeed/flight/StandardAtmosphere.h"
#include "flightfeed/flight/Units.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <map>
#include <sstream>

namespace skyvane {

namespace {

constexpr double NOT_SET = std::numeric_limits<double>::quiet_NaN();

using Values = std::map<std::string, double>;

// Names and what they are without being set.
Values defaults() {
    return {{"pitch", 0.0},
            {"roll", 0.0},
            {"heading", 0.0},
            {"altitude_ft", 3000.0},
            {"ias_kt", 100.0},
            {"vs_fpm", 0.0},
            {"latitude", 42.0},
            {"longitude", -28.5},
            {"ball", 0.0},
            {"gs_kt", NOT_SET},
            {"track", NOT_SET},
            {"turn_rate", NOT_SET},
            {"pressure_mb", NOT_SET},
            {"temperature_c", NOT_SET},
            {"localizer_dots", NOT_SET},
            {"glideslope_dots", NOT_SET}};
}

double orElse(double value, double fallback) {
    return std::isnan(value) ? fallback : value;
}

void setForces(FlightState& state, double ballDegrees) {
    // Straight up in a coordinated turn means along the aircraft's own floor-to-roof line.
    const double load = GRAVITY_METRES_PER_SECOND_SQUARED * std::cos(toRadians(state.pitchDegrees)) /
                        std::max(0.1, std::cos(toRadians(state.rollDegrees)));
    state.specificForceForward = GRAVITY_METRES_PER_SECOND_SQUARED * std::sin(toRadians(state.pitchDegrees));
    state.specificForceDown = -load;
    state.specificForceRight = -load * std::tan(toRadians(ballDegrees));
}

void setRates(FlightState& state) {
    const BodyRates rates = bodyRates(toRadians(state.rollDegrees), toRadians(state.pitchDegrees), 0.0, 0.0,
                                      toRadians(state.headingRateDegreesPerSecond));
    state.rollRateRadiansPerSecond = rates.roll;
    state.pitchRateRadiansPerSecond = rates.pitch;
    state.yawRateRadiansPerSecond = rates.yaw;
}

FlightState build(Values& v) {
    FlightState s;
    s.pitchDegrees = v["pitch"];
    s.rollDegrees = v["roll"];
    s.headingDegrees = wrapDegrees360(v["heading"]);
    s.latitudeDegrees = v["latitude"];
    s.longitudeDegrees = v["longitude"];
    s.altitudeMetres = v["altitude_ft"] * METRES_PER_FOOT;
    s.verticalSpeedMetresPerSecond = v["vs_fpm"] * METRES_PER_SECOND_PER_FOOT_PER_MINUTE;
    s.indicatedAirspeedKnots = v["ias_kt"];
    s.trueAirspeedKnots = s.indicatedAirspeedKnots / std::sqrt(standardDensityRatio(s.altitudeMetres));
    s.groundSpeedKnots = orElse(v["gs_kt"], s.trueAirspeedKnots);
    s.groundTrackDegrees = wrapDegrees360(orElse(v["track"], s.headingDegrees));
    const double speed = s.groundSpeedKnots * METRES_PER_SECOND_PER_KNOT;
    s.velocityNorthMetresPerSecond = speed * std::cos(toRadians(s.groundTrackDegrees));
    s.velocityEastMetresPerSecond = speed * std::sin(toRadians(s.groundTrackDegrees));
    const double trueSpeed = std::max(20.0, s.trueAirspeedKnots * METRES_PER_SECOND_PER_KNOT);
    const double bank = std::abs(s.rollDegrees) < 80.0 ? toRadians(s.rollDegrees) : 0.0;
    s.headingRateDegreesPerSecond =
        orElse(v["turn_rate"], toDegrees(GRAVITY_METRES_PER_SECOND_SQUARED * std::tan(bank) / trueSpeed));
    s.pressureMillibars = orElse(v["pressure_mb"], standardPressureMillibars(s.altitudeMetres));
    s.temperatureCelsius = orElse(v["temperature_c"], standardTemperatureCelsius(s.altitudeMetres));
    s.hasIls = !std::isnan(v["localizer_dots"]) || !std::isnan(v["glideslope_dots"]);
    s.localizerDots = orElse(v["localizer_dots"], 0.0);
    s.glideslopeDots = orElse(v["glideslope_dots"], 0.0);
    setForces(s, v["ball"]);
    setRates(s);
    return s;
}

} // namespace

HeldState::HeldState() {
    Values values = defaults();
    first_ = state_ = build(values);
}

bool HeldState::set(const std::string& text, std::string& error) {
    Values values = defaults();
    std::istringstream in(text);
    for (std::string entry; std::getline(in, entry, ',');) {
        const size_t equals = entry.find('=');
        const auto found = values.find(entry.substr(0, equals));
        if (equals == std::string::npos || found == values.end()) {
            error = "\"" + entry + "\" is no value of a state";
            return false;
        }
        if (!parseStrictNumber(entry.substr(equals + 1), found->second)) {
            error = "\"" + entry + "\": that isn't a number";
            return false;
        }
    }
    first_ = state_ = build(values);
    return true;
}

bool HeldState::advance(double seconds) {
    state_.timeSeconds += seconds;
    state_.utcSeconds += seconds;
    return true;
}

void HeldState::restart() {
    state_ = first_;
}

} // namespace skyvane
