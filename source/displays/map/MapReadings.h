#pragma once

#include "chart/geodesy/ChartPosition.h"
#include "sensors/ISensor.h"

namespace skyvane {

class SensorManager;

/// What a map asks of the sensors in each frame. What isn't told, or is no number, keeps its value and counts as WRONG.
struct MapReadings {
    ChartPosition position;
    double headingDegrees = 0.0;
    double altitudeMetres = 0.0; ///< As indicated.
    bool hasPosition = false;    ///< There was one, ever.
    ISensor::WarningLevel positionLevel = ISensor::WRONG;
    ISensor::WarningLevel headingLevel = ISensor::WRONG;
    ISensor::WarningLevel altitudeLevel = ISensor::WRONG;

    void update(SensorManager& sensors);
    ISensor::WarningLevel getWorst() const;
};

} // namespace skyvane
