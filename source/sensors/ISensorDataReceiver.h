#pragma once

namespace skyvane {

class SensorManager;

/// Is told once a frame, after all sensors were updated.
class ISensorDataReceiver {
public:
    virtual ~ISensorDataReceiver() = default;
    virtual void OnSensorUpdate(SensorManager* sensors) = 0;
};

} // namespace skyvane
