#pragma once

#include "procedures/framework/CourseGuidance.h"

#include <optional>

namespace skyvane {

class SensorManager;

/// What the default sensors say of the flight; nothing for what no sensor tells or what is WRONG. A
/// simulated place counts.
struct FlightReadings {
    std::optional<ChartPosition> position;
    std::optional<double> altitude;    ///< metres
    std::optional<double> groundSpeed; ///< knots
    std::optional<double> heading;     ///< degrees true; over ground where there is no heading

    bool isPlaced() const { return position && altitude; }
    /// Standing still and heading north where nobody knows better. Only when placed.
    AircraftMotion state() const;
};

/// Each value from its own record, or else from that of the satellite receiver.
FlightReadings readFlight(SensorManager& sensors);

} // namespace skyvane
