#pragma once

#include <cmath>

namespace skyvane {

constexpr double PI = 3.14159265358979323846;
constexpr double DEGREES_PER_RADIAN = 180.0 / PI;
constexpr double METRES_PER_FOOT = 0.3048;
constexpr double METRES_PER_SECOND_PER_KNOT = 0.514444444;
constexpr double METRES_PER_SECOND_PER_FOOT_PER_MINUTE = METRES_PER_FOOT / 60.0;
constexpr double GRAVITY_METRES_PER_SECOND_SQUARED = 9.81;

inline double toRadians(double degrees) {
    return degrees / DEGREES_PER_RADIAN;
}
inline double toDegrees(double radians) {
    return radians * DEGREES_PER_RADIAN;
}

/// Into 0 up to but not including 360.
inline double wrapDegrees360(double degrees) {
    const double wrapped = degrees - 360.0 * std::floor(degrees / 360.0);
    return wrapped < 360.0 ? wrapped : 0.0;
}

/// Into -180 up to but not including 180.
inline double wrapDegrees180(double degrees) {
    return wrapDegrees360(degrees + 180.0) - 180.0;
}

/// Into -pi up to but not including pi.
inline double wrapRadians(double radians) {
    return toRadians(wrapDegrees180(toDegrees(radians)));
}

} // namespace skyvane
