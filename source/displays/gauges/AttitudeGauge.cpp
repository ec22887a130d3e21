#include "displays/gauges/AttitudeGauge.h"

#include "attitude/math/Matrix3x3.h"
#include "chart/geodesy/Angles.h"

#include <algorithm>
#include <cmath>

namespace skyvane {

namespace {

constexpr double degreesPerRadian = 57.29577951308232;

/// 90 degrees minus the angle whose cosine is given: the angle above the plane to which that cosine belongs.
double elevationDegrees(double cosine) {
    return 90.0 - std::acos(std::clamp(cosine, -1.0, 1.0)) * degreesPerRadian;
}

} // namespace

double CalcIndicatedPitch(irr::core::vector3d<double> forward, const irr::core::vector3d<double>& up) {
    const double pitch = elevationDegrees(forward.normalize().Y);
    return up.Y < 0.0 ? 180.0 - pitch : pitch;
}

double CalcIndicatedRoll(irr::core::vector3d<double> forward, irr::core::vector3d<double> up) {
    forward.normalize();
    up.normalize();
    irr::core::vector3d<double> levelRight(forward.Z, 0.0, -forward.X);
    levelRight.normalize();
    const double roll = elevationDegrees(up.dotProduct(levelRight));
    return levelRight.dotProduct(up.crossProduct(forward)) < 0.0 ? 180.0 - roll : roll;
}

AttitudePose calcAttitudePose(const Matrix3x3& attitude) {
    const Matrix3x3::Vector forward = attitude.getForwardVector();
    const Matrix3x3::Vector up = attitude.getUpVector();
    return {Latitudinize(CalcIndicatedPitch(forward, up)), CalcIndicatedRoll(forward, up)};
}

irr::core::vector2d<double> calcLadderOffset(const AttitudePose& pose, double ladderEdge) {
    const double offset = pose.pitchDegrees * (-1.0 / 90.0) * ladderEdge;
    const double roll = pose.rollDegrees / degreesPerRadian;
    return {-std::sin(roll) * offset, -std::cos(roll) * offset};
}

bool isFinite(const Matrix3x3& attitude) {
    return std::all_of(attitude.data(), attitude.data() + 9, [](double value) { return std::isfinite(value); });
}

} // namespace skyvane
