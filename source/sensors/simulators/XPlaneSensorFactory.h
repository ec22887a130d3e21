#pragma once

#include "sensors/NoSetupGUISensorFactory.h"

namespace skyvane {

class SensorManager;

/// Makes the sensor that listens to X-Plane on UDP port 49000.
class XPlaneSensorFactory : public NoSetupGUISensorFactory {
public:
    static constexpr int Port = 49000;
    static constexpr int BufferBytes = 512;

    /// The manager outlives the factory.
    explicit XPlaneSensorFactory(SensorManager* sensors);
    std::unique_ptr<ISensor> Create() override;

private:
    SensorManager* sensors_;
};

} // namespace skyvane
