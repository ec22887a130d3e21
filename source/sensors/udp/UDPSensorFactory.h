#pragma once

#include "sensors/NoSetupGUISensorFactory.h"
#include "sensors/udp/UDPSensor.h"

namespace skyvane {

class ISensorDialogs;

/// Makes the sensor that takes the records of another copy of the program.
class UDPSensorFactory : public NoSetupGUISensorFactory {
public:
    /// Manager and dialogs outlive the factory.
    UDPSensorFactory(SensorManager* sensors, ISensorDialogs* dialogs);

    /// Numbers that can't be are replaced by their defaults.
    void loadSetupFromIni(IniFile* ini, std::string section) override;
    bool setup(IniFile* ini, std::string section) override;
    std::unique_ptr<ISensor> Create() override;

private:
    SensorManager* sensors_;
    ISensorDialogs* dialogs_;
    UDPSensorOptions options_;
};

} // namespace skyvane
