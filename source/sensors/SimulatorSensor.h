#pragma once

#include "sensors/NullSensor.h"

namespace skyvane {

/// A NullSensor whose records the simulation writes to.
class SimulatorSensor : public NullSensor {
public:
    using NullSensor::NullSensor;
};

} // namespace skyvane
