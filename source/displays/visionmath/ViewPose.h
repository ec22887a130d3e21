#pragma once

#include "core/geometry/EngineMath.h"

namespace skyvane {

class Matrix3x3;

/// Where an eye is and how it looks: x east, y up, z north; metres from the scene's origin. The axes are of unit length
/// and at right angles.
struct ViewPose {
    using Vector = irr::core::vector3d<double>;

    Vector position;
    Vector right{1.0, 0.0, 0.0};
    Vector up{0.0, 1.0, 0.0};
    Vector forward{0.0, 0.0, 1.0};

    /// A direction of the scene in the axes of the eye: x right, y up, z forward.
    Vector toEye(const Vector& direction) const {
        return {direction.dotProduct(right), direction.dotProduct(up), direction.dotProduct(forward)};
    }
};

/// The pilot's eye: looks along the aircraft's forward. Axes that aren't quite at right angles are straightened; false,
/// and the pose stays, when the rotation isn't one (a number that isn't finite, axes without length).
bool lookAlong(const Matrix3x3& attitude, ViewPose& pose);

/// An eye that looks at the origin's place from a distance. `bearingDegrees` is the direction in which it looks, true;
/// `heightDegrees` how far above the horizon it stands, below 90.
ViewPose lookAt(const ViewPose::Vector& place, double bearingDegrees, double heightDegrees, double distanceMetres);

} // namespace skyvane
