#include "displays/gauges/TurnGauge.h"

#include <algorithm>
#include <cmath>

namespace skyvane {

namespace {

constexpr double stripUnits = 747.0; // the width of the strip in the units of its formulas

} // namespace

double calcTurnRotation(double degreesPerSecond) {
    const double magnitude = 90.0 - 90.0 * std::exp(-0.08377147609363535 * std::abs(degreesPerSecond));
    return degreesPerSecond > 0.0 ? -magnitude : magnitude;
}

double calcSideways(const irr::core::vector3d<double>& acceleration) {
    const double length = std::hypot(acceleration.X, acceleration.Y, acceleration.Z);
    return length > 0.0 ? std::clamp(acceleration.X / length, -1.0, 1.0) : 0.0;
}

double calcBallOffset(double sideways) {
    return std::copysign(0.3359 * (1.0 - std::exp(-1.732875 * std::abs(sideways))), sideways);
}

double calcSlipOffset(double sideways) {
    return 0.5 * sideways;
}

double calcTurnMarkOffset(double degreesPerSecond) {
    const double rate = std::abs(degreesPerSecond);
    const double units = rate <= 6.0 ? 28.0 * rate : 373.0 - 465.22547207943126 * std::exp(-0.13658536585365855 * rate);
    return std::copysign(units, degreesPerSecond) / stripUnits;
}

} // namespace skyvane
