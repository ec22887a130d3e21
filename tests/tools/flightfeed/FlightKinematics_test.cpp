#include "flightfeed/flight/Units.h"
#include "tools/flightfeed/FlownCard.h"

#include <cmath>
#include <gmock/gmock.h>

using namespace skyvane;

// The whole demonstration flight is held against itself: every rate that it tells must be the slope of what it tells a
// moment before and after. The formulas here are the textbook's, written again, and share nothing with the flight's
// own.

namespace {

constexpr double SPACING = 0.02;

const std::vector<FlightState>& demo() {
    static const std::vector<FlightState> states = fly(cardText("demo.card"), SPACING);
    return states;
}

double slope(double before, double after) {
    return (after - before) / (2.0 * SPACING);
}

double angleSlope(double before, double after) {
    return std::remainder(after - before, 360.0) / (2.0 * SPACING);
}

// The largest disagreement over the flight, so that a failure tells one number instead of thousands.
struct Worst {
    double size = 0.0;
    double atSeconds = 0.0;

    void see(double difference, const FlightState& state) {
        if (!(std::abs(difference) <= size)) {
            size = std::abs(difference);
            atSeconds = state.timeSeconds;
        }
    }
};

void expectBelow(const Worst& worst, double limit, const char* what) {
    EXPECT_LT(worst.size, limit) << what << ", worst at " << worst.atSeconds << " s";
}

bool wheelsChange(const std::vector<FlightState>& states, size_t i) {
    return states[i - 1].onGround != states[i].onGround || states[i].onGround != states[i + 1].onGround;
}

} // namespace

TEST(FlightKinematics, PositionMovesAsTheVelocitySays) {
    const auto& states = demo();
    Worst north, east, climb;
    for (size_t i = 1; i + 1 < states.size(); ++i) {
        const FlightState &a = states[i - 1], &s = states[i], &b = states[i + 1];
        // Radii of curvature of the WGS 84 ellipsoid.
        const double sine = std::sin(s.latitudeDegrees * M_PI / 180.0);
        const double w = std::sqrt(1.0 - 0.0066943799901413165 * sine * sine);
        const double prime = 6378137.0 / w + s.altitudeMetres;
        const double meridian = 6378137.0 * (1.0 - 0.0066943799901413165) / (w * w * w) + s.altitudeMetres;
        north.see(
            slope(a.latitudeDegrees, b.latitudeDegrees) * M_PI / 180.0 * meridian - s.velocityNorthMetresPerSecond, s);
        east.see(slope(a.longitudeDegrees, b.longitudeDegrees) * M_PI / 180.0 * prime *
                         std::cos(s.latitudeDegrees * M_PI / 180.0) -
                     s.velocityEastMetresPerSecond,
                 s);
        climb.see(slope(a.altitudeMetres, b.altitudeMetres) - s.verticalSpeedMetresPerSecond, s);
    }
    expectBelow(north, 0.02, "north velocity");
    expectBelow(east, 0.02, "east velocity");
    expectBelow(climb, 0.02, "vertical speed");
}

TEST(FlightKinematics, SpeedAndTrackAreTheVelocityVector) {
    Worst speed, track;
    for (const FlightState& s : demo()) {
        const double north = s.velocityNorthMetresPerSecond, east = s.velocityEastMetresPerSecond;
        speed.see(s.groundSpeedKnots * 0.514444444 - std::hypot(north, east), s);
        if (s.groundSpeedKnots > 1.0)
            track.see(std::remainder(s.groundTrackDegrees - std::atan2(east, north) * 180.0 / M_PI, 360.0), s);
    }
    expectBelow(speed, 1e-6, "ground speed");
    expectBelow(track, 1e-6, "track");
}

TEST(FlightKinematics, RatesAreTheSlopesOfTheAttitude) {
    const auto& states = demo();
    Worst heading, roll, pitch, yaw;
    for (size_t i = 1; i + 1 < states.size(); ++i) {
        const FlightState &a = states[i - 1], &s = states[i], &b = states[i + 1];
        const double headingRate = angleSlope(a.headingDegrees, b.headingDegrees) * M_PI / 180.0;
        const double pitchRate = slope(a.pitchDegrees, b.pitchDegrees) * M_PI / 180.0;
        const double rollRate = slope(a.rollDegrees, b.rollDegrees) * M_PI / 180.0;
        const double phi = s.rollDegrees * M_PI / 180.0, theta = s.pitchDegrees * M_PI / 180.0;
        heading.see(headingRate * 180.0 / M_PI - s.headingRateDegreesPerSecond, s);
        roll.see(rollRate - headingRate * std::sin(theta) - s.rollRateRadiansPerSecond, s);
        pitch.see(
            pitchRate * std::cos(phi) + headingRate * std::cos(theta) * std::sin(phi) - s.pitchRateRadiansPerSecond, s);
        yaw.see(headingRate * std::cos(theta) * std::cos(phi) - pitchRate * std::sin(phi) - s.yawRateRadiansPerSecond,
                s);
    }
    expectBelow(heading, 0.2, "heading rate, degrees per second");
    expectBelow(roll, 0.01, "body roll rate");
    expectBelow(pitch, 0.01, "body pitch rate");
    expectBelow(yaw, 0.01, "body yaw rate");
}

TEST(FlightKinematics, AttitudeRatesHaveNoJumps) {
    const auto& states = demo();
    Worst jump;
    for (size_t i = 1; i < states.size(); ++i) {
        jump.see(states[i].rollRateRadiansPerSecond - states[i - 1].rollRateRadiansPerSecond, states[i]);
        jump.see(states[i].pitchRateRadiansPerSecond - states[i - 1].pitchRateRadiansPerSecond, states[i]);
        jump.see(states[i].yawRateRadiansPerSecond - states[i - 1].yawRateRadiansPerSecond, states[i]);
    }
    expectBelow(jump, 0.05, "step of a body rate within 20 ms");
}

TEST(FlightKinematics, SpecificForceIsTheAccelerationOfThePathLessGravity) {
    const auto& states = demo();
    Worst forward, right, down;
    double climbing = 0.0;
    int climbs = 0;
    for (size_t i = 1; i + 1 < states.size(); ++i) {
        if (wheelsChange(states, i))
            continue;
        const FlightState &a = states[i - 1], &s = states[i], &b = states[i + 1];
        const double fn = slope(a.velocityNorthMetresPerSecond, b.velocityNorthMetresPerSecond);
        const double fe = slope(a.velocityEastMetresPerSecond, b.velocityEastMetresPerSecond);
        const double fd = -slope(a.verticalSpeedMetresPerSecond, b.verticalSpeedMetresPerSecond) - 9.81;
        // Undo heading, then pitch, then roll.
        const double psi = s.headingDegrees * M_PI / 180.0, theta = s.pitchDegrees * M_PI / 180.0;
        const double phi = s.rollDegrees * M_PI / 180.0;
        const double x1 = fn * std::cos(psi) + fe * std::sin(psi), y1 = fe * std::cos(psi) - fn * std::sin(psi);
        const double x2 = x1 * std::cos(theta) - fd * std::sin(theta);
        const double z2 = x1 * std::sin(theta) + fd * std::cos(theta);
        forward.see(x2 - s.specificForceForward, s);
        if (s.verticalSpeedMetresPerSecond > 2.0) {
            climbing += x2 - s.specificForceForward;
            ++climbs;
        }
        right.see(y1 * std::cos(phi) + z2 * std::sin(phi) - s.specificForceRight, s);
        down.see(z2 * std::cos(phi) - y1 * std::sin(phi) - s.specificForceDown, s);
    }
    expectBelow(forward, 0.06, "forward");
    // True airspeed grows in a climb at a steady indicated one: a hundredth of a metre per second squared.
    ASSERT_GT(climbs, 1000);
    EXPECT_NEAR(climbing / climbs, 0.0, 0.001);
    expectBelow(right, 0.06, "right");
    expectBelow(down, 0.06, "down");
}

TEST(FlightKinematics, TurnRateFitsBankAndSpeed) {
    // The formula holds for a level turn at a steady speed and bank, which is looked for.
    const auto& states = demo();
    int seen = 0;
    for (size_t i = 1; i + 1 < states.size(); ++i) {
        const FlightState& s = states[i];
        const double speedRate = slope(states[i - 1].trueAirspeedKnots, states[i + 1].trueAirspeedKnots);
        const bool settled = !s.onGround && std::abs(s.rollRateRadiansPerSecond) < 0.005 && std::abs(speedRate) < 0.1 &&
                             std::abs(s.verticalSpeedMetresPerSecond) < 0.05 && std::abs(ballAngleDegrees(s)) < 0.05;
        if (!settled || std::abs(s.rollDegrees) < 10.0)
            continue;
        const double expected =
            9.81 * std::tan(s.rollDegrees * M_PI / 180.0) / (s.trueAirspeedKnots * 0.514444444) * 180.0 / M_PI;
        ASSERT_NEAR(s.headingRateDegreesPerSecond / expected, 1.0, 0.01) << "at " << s.timeSeconds;
        ++seen;
    }
    EXPECT_GT(seen, 5000) << "the flight has hardly a turn that could be looked at";
}

TEST(FlightKinematics, AirspeedPressureAndTemperatureAreTheStandardAtmospheres) {
    for (const FlightState& s : demo()) {
        const double kelvin = 288.15 - 0.0065 * s.altitudeMetres;
        ASSERT_NEAR(s.temperatureCelsius, kelvin - 273.15, 1e-6);
        ASSERT_NEAR(s.pressureMillibars, 1013.25 * std::pow(kelvin / 288.15, 5.2559), 0.02);
        if (s.onGround || std::abs(ballAngleDegrees(s)) > 0.05 || std::abs(s.rollDegrees) > 1.0)
            continue;
        const double density = s.pressureMillibars / 1013.25 * 288.15 / kelvin;
        // Nose and air may differ for some seconds after a take-off and before a landing in a cross wind.
        ASSERT_NEAR(s.indicatedAirspeedKnots / (s.trueAirspeedKnots * std::sqrt(density)), 1.0, 0.01);
    }
}

TEST(FlightKinematics, WindIsTheDifferenceBetweenAirAndGround) {
    const double windNorth = -20.0 * std::cos(240.0 * M_PI / 180.0), windEast = -20.0 * std::sin(240.0 * M_PI / 180.0);
    const auto states = fly("wind 240 20kt\nstart 42 -28.5 altitude 3000ft heading 010 speed 100kt\n"
                            "level 20s\nturn right bank 30 to 200\nlevel 20s\nclimb 500ftmin to 3500ft\nlevel 5s\n",
                            0.1);
    Worst air, drift;
    for (const FlightState& s : states) {
        const double north = s.groundSpeedKnots * std::cos(s.groundTrackDegrees * M_PI / 180.0) - windNorth;
        const double east = s.groundSpeedKnots * std::sin(s.groundTrackDegrees * M_PI / 180.0) - windEast;
        air.see(std::hypot(std::hypot(north, east), s.verticalSpeedMetresPerSecond / 0.514444444) - s.trueAirspeedKnots,
                s);
        if (std::abs(s.rollDegrees) < 0.1)
            drift.see(std::remainder(std::atan2(east, north) * 180.0 / M_PI - s.headingDegrees, 360.0), s);
    }
    expectBelow(air, 0.01, "true airspeed, knots");
    expectBelow(drift, 0.1, "heading against the air's course, degrees");
}
