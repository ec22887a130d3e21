#pragma once

#include "chart/geodesy/ChartPosition.h"

#include <optional>

namespace skyvane {

class SensorManager;

/// What a side view asks of the sensors in each frame. What isn't told, is WRONG, or is no number, isn't there.
struct SideReadings {
    std::optional<ChartPosition> position;
    std::optional<double> altitudeMetres;
    std::optional<double> groundMetresPerSecond;
    std::optional<double> climbMetresPerSecond;
    std::optional<double> pitchDegrees;
    bool isDoubtful = false; ///< Position or altitude.

    /// Upwards. Without the speeds that give it, where the nose points; level where nobody knows that either.
    double getFlightPathDegrees() const;
    /// Metres up for each metre over the ground; nothing when the aircraft hardly moves.
    std::optional<double> getSlope() const;
};

SideReadings readSide(SensorManager& sensors);

} // namespace skyvane
