#pragma once

#include <cstdint>
#include <string>

namespace skyvane {

/// One target of the traffic picture. The initial values mean unknown.
struct TrafficElement {
    static constexpr size_t MaxNameLength = 9;

    uint32_t icaoAddress = 0;
    /// Degrees.
    double longitude = -360.0;
    double latitude = -360.0;
    /// Feet.
    int altitude = -100000;
    /// Knots.
    int velocity = -100000;
    /// Feet per minute.
    int climbRate = -100000;
    int squawk = 0;
    int capabilityIndex = 100000;
    /// Degrees.
    float track = -360.0f;
    /// At most nine bytes count.
    std::string name;
};

} // namespace skyvane
