#pragma once

#include "sensors/NoSetupGUISensorFactory.h"
#include "sensors/gdl90/GDL90Flavor.h"

#include <functional>

namespace skyvane {

class GDL90Sensor;
class ISensorDialogs;
class SensorManager;

/// Makes the sensor that listens to a GDL 90 receiver.
class GDL90SensorFactory : public NoSetupGUISensorFactory {
public:
    static constexpr int DefaultPort = 4000;
    /// Shows the window in which the pilot calibrates a sensor, and comes back when it is closed.
    using CalibrationWindow = std::function<void(GDL90Sensor&)>;

    /// Manager and dialogs outlive the factory.
    GDL90SensorFactory(SensorManager* sensors, ISensorDialogs* dialogs, CalibrationWindow window);

    /// A port that can't be is replaced by the default; a flavour that isn't known is the generic one.
    void loadSetupFromIni(IniFile* ini, std::string section) override;
    bool setup(IniFile* ini, std::string section) override;
    std::unique_ptr<ISensor> Create() override;

    /// The calibration window, or a word to the pilot that there is no device to calibrate.
    void calibrate(GDL90Sensor& sensor);

private:
    SensorManager* sensors_;
    ISensorDialogs* dialogs_;
    CalibrationWindow window_;
    int port_ = DefaultPort;
    GDL90Flavor flavor_ = GDL90Flavor::Generic;
};

} // namespace skyvane
