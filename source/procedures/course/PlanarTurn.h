#pragma once

#include "chart/geodesy/EarthConstants.h"
#include "core/geometry/EngineMath.h"

#include <cmath>

namespace skyvane {

/// A knot in metres per second.
constexpr double MetresPerSecondPerKnot = 0.514444444;

/// The place beside one that flies on a course, in a local frame: to the right, to the left when negative.
template <typename T>
irr::core::vector3d<T> besideCourse(const irr::core::vector3d<T>& place, double courseDegrees, double metresRight) {
    const double radians = courseDegrees / DegreesPerRadian;
    return {static_cast<T>(place.X + std::cos(radians) * metresRight), place.Y,
            static_cast<T>(place.Z - std::sin(radians) * metresRight)};
}

/// A place turned around a centre, clockwise as seen from above.
template <typename T>
irr::core::vector3d<T> turnedAround(const irr::core::vector3d<T>& centre, const irr::core::vector3d<T>& place,
                                    double degreesClockwise) {
    const double radians = degreesClockwise / DegreesPerRadian;
    const T cosine = static_cast<T>(std::cos(radians));
    const T sine = static_cast<T>(std::sin(radians));
    const T x = place.X - centre.X;
    const T z = place.Z - centre.Z;
    return {centre.X + x * cosine + z * sine, place.Y, centre.Z - x * sine + z * cosine};
}

} // namespace skyvane
