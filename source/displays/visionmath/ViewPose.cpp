#include "displays/visionmath/ViewPose.h"

#include "attitude/math/Matrix3x3.h"

#include <cmath>

namespace skyvane {
namespace {

constexpr double radiansPerDegree = 0.017453292519943295;

} // namespace

bool lookAlong(const Matrix3x3& attitude, ViewPose& pose) {
    ViewPose::Vector forward = attitude.getForwardVector();
    ViewPose::Vector right = attitude.getUpVector().crossProduct(forward);
    const double forwardLength = forward.getLength(), rightLength = right.getLength();
    // The negated comparisons refuse NaN too.
    if (!(forwardLength > 1e-6) || !(rightLength > 1e-6) || !std::isfinite(forwardLength * rightLength))
        return false;
    pose.forward = forward / forwardLength;
    pose.right = right / rightLength;
    pose.up = pose.forward.crossProduct(pose.right);
    return true;
}

ViewPose lookAt(const ViewPose::Vector& place, double bearingDegrees, double heightDegrees, double distanceMetres) {
    const double bearing = bearingDegrees * radiansPerDegree, height = heightDegrees * radiansPerDegree;
    ViewPose pose;
    pose.forward.set(std::sin(bearing) * std::cos(height), -std::sin(height), std::cos(bearing) * std::cos(height));
    pose.right.set(std::cos(bearing), 0.0, -std::sin(bearing));
    pose.up = pose.forward.crossProduct(pose.right);
    pose.position = place - pose.forward * distanceMetres;
    return pose;
}

} // namespace skyvane
