#include "chart/geodesy/Angles.h"

#include <cmath>

namespace skyvane {
namespace {

/// fmod by 360, spared where it changes nothing.
double withoutTurns(double degrees) {
    return std::fabs(degrees) < 360.0 ? degrees : std::fmod(degrees, 360.0);
}

} // namespace

double Angle0to360(double degrees) {
    double angle = withoutTurns(degrees);
    if (angle < 0.0)
        angle += 360.0;
    // The sum of a tiny negative number and 360 rounds to 360.
    return angle < 360.0 ? angle : angle - 360.0;
}

double Angle360(double degrees) {
    return degrees == 360.0 ? degrees : Angle0to360(degrees);
}

double Angle180(double degrees) {
    const double angle = withoutTurns(degrees);
    if (angle > 180.0)
        return angle - 360.0;
    return angle < -180.0 ? angle + 360.0 : angle;
}

irr::core::vector3d<double> Angle180(const irr::core::vector3d<double>& degrees) {
    return irr::core::vector3d<double>(Angle180(degrees.X), Angle180(degrees.Y), Angle180(degrees.Z));
}

double Latitudinize(double degrees) {
    const double angle = Angle180(degrees);
    if (angle > 90.0)
        return 180.0 - angle;
    return angle < -90.0 ? -180.0 - angle : angle;
}

double AngleDiff(double a, double b) {
    const double difference = a - b;
    if (difference > 180.0)
        return difference - 360.0;
    return difference < -180.0 ? difference + 360.0 : difference;
}

double headingDiff(double a, double b) {
    const double difference = std::fabs(a - b);
    return difference > 180.0 ? 360.0 - difference : difference;
}

double transformLongitude(double longitude, double reference) {
    return Angle180(longitude - reference);
}

double hlp_Flip(double degrees) {
    return 180.0 - degrees;
}

double lerpAngle(double a, double b, double t) {
    return std::atan2((1.0 - t) * std::sin(a) + t * std::sin(b), (1.0 - t) * std::cos(a) + t * std::cos(b));
}

} // namespace skyvane
