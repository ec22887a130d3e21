#pragma once

#include "sensors/ISensor.h"

#include <cstdint>
#include <string>

namespace skyvane {

class SensorManager;

/// What a lamp watches. The names are stored.
enum class WarningType { DEFAULTSENSORS, ALTITUDE, COURSE, SPEED };

/// The first type for a name that is none.
WarningType parseWarningType(const std::string& name);
const char* nameOf(WarningType type);

/// What a procedure tells of the deviation that a lamp watches.
struct LampWatch {
    bool flown = false;   ///< There is a procedure in force.
    bool checked = false; ///< The deviation is watched for.
    bool warning = false;
};

/// Colours as 0xAARRGGBB. Green, yellow for doubtful, red for wrong.
uint32_t sensorLampColor(ISensor::WarningLevel level);
/// White while nothing is watched, then green or yellow.
uint32_t procedureLampColor(const LampWatch& watch);

/// What each sensor but the first tells of itself, and how good its data is where it is the default.
std::string describeSensors(SensorManager& sensors);

} // namespace skyvane
