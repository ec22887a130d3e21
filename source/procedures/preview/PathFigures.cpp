#include "procedures/preview/PathFigures.h"

#include "chart/geodesy/EarthConstants.h"
#include "procedures/course/PlanarTurn.h"

#include <cmath>

namespace skyvane {
namespace {

constexpr double gravity = 9.81;

double radians(double degrees) {
    return degrees / DegreesPerRadian;
}

} // namespace

double turnRadiusMiles(double degreesPerSecond, double knots) {
    if (degreesPerSecond == 0.0)
        return 0.0;
    return std::fabs(knots) * MetresPerSecondPerKnot / std::fabs(radians(degreesPerSecond)) / MetresPerNauticalMile;
}

double bankDegrees(double degreesPerSecond, double knots) {
    return std::atan(std::fabs(knots * radians(degreesPerSecond)) * MetresPerSecondPerKnot / gravity) *
           DegreesPerRadian;
}

double glideAngleDegrees(double feetPerMile) {
    return std::atan(feetPerMile * MetresPerFoot / MetresPerNauticalMile) * DegreesPerRadian;
}

double descentFeetPerMinute(double feetPerMile, double knots) {
    return feetPerMile * knots / 60.0;
}

} // namespace skyvane
