#pragma once

#include "sensors/NoSetupGUISensorFactory.h"

namespace skyvane {

class SensorManager;

/// Makes the sensor that listens to FlightGear on UDP port 6789.
class FlightGearSensorFactory : public NoSetupGUISensorFactory {
public:
    static constexpr int Port = 6789;

    /// The manager outlives the factory.
    explicit FlightGearSensorFactory(SensorManager* sensors);
    std::unique_ptr<ISensor> Create() override;

private:
    SensorManager* sensors_;
};

} // namespace skyvane
