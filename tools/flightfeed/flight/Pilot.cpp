#include "flightfeed/flight/Pilot.h"

#include "flightfeed/flight/Units.h"

#include <algorithm>
#include <cmath>

namespace skyvane {

void Pilot::holdCourse() {
    turnTowards(courseRadians);
}

void Pilot::holdAltitude(double greatestClimb) {
    constexpr double gainPerSecond = 0.25;
    const double wanted = gainPerSecond * (altitudeMetres - model_.altitudeMetres());
    model_.controls.climbMetresPerSecond = std::clamp(wanted, -greatestClimb, greatestClimb);
}

void Pilot::turnAt(double radiansPerSecond, double greatestBank) {
    const double bank =
        std::atan(model_.trueAirspeedMetresPerSecond() * radiansPerSecond / GRAVITY_METRES_PER_SECOND_SQUARED);
    model_.controls.bankRadians = std::clamp(bank, -greatestBank, greatestBank) + model_.ballRadians();
}

void Pilot::steerTrack(double trackRadians) {
    const double windFromLeft =
        model_.windToEast() * std::cos(trackRadians) - model_.windToNorth() * std::sin(trackRadians);
    const double part = std::clamp(windFromLeft / model_.trueAirspeedMetresPerSecond(), -0.9, 0.9);
    turnTowards(trackRadians - std::asin(part));
}

void Pilot::turnTowards(double airCourse) {
    const double remaining = wrapRadians(airCourse - model_.airCourseRadians());
    turnAt(std::clamp(TURN_GAIN_PER_SECOND * remaining, -STANDARD_RATE_RADIANS_PER_SECOND,
                      STANDARD_RATE_RADIANS_PER_SECOND),
           toRadians(30.0));
}

} // namespace skyvane
