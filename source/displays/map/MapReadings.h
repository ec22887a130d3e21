#pragma once

#include "chart/geodesy/ChartPosition.h"
#include "sensors/ISensor.h"

#include <limits>

namespace skyvane {

class SensorManager;

/// What a map asks of the sensors in each frame. What isn't told, or is no number, counts as WRONG: place and heading
/// keep their values, so that the map stays where it is; the altitude is none then.
struct MapReadings {
    ChartPosition position;
    double headingDegrees = 0.0;
    double altitudeMetres = std::numeric_limits<double>::quiet_NaN(); ///< As indicated; NaN while it is WRONG.
    bool hasPosition = false;                                         ///< There was one, ever.
    ISensor::WarningLevel positionLevel = ISensor::WRONG;
    ISensor::WarningLevel headingLevel = ISensor::WRONG;
    ISensor::WarningLevel altitudeLevel = ISensor::WRONG;

    void update(SensorManager& sensors);
    ISensor::WarningLevel getWorst() const;
};

} // namespace skyvane
