#pragma once

#include "sensors/ISensor.h"
#include "sensors/NoSetupGUISensorFactory.h"

#include <string>

namespace skyvane {

class ISensorDialogs;
class SensorManager;

/// Makes the sensor that plays a log of the log folder.
class LogFileSensorFactory : public NoSetupGUISensorFactory {
public:
    /// Manager and dialogs outlive the factory. The folder ends in a slash.
    LogFileSensorFactory(SensorManager* sensors, ISensorDialogs* dialogs, std::string folder);

    void loadSetupFromIni(IniFile* ini, std::string section) override;
    bool setup(IniFile* ini, std::string section) override;
    std::unique_ptr<ISensor> Create() override;

private:
    SensorManager* sensors_;
    ISensorDialogs* dialogs_;
    std::string folder_;
    std::string path_;
    ISensor::WarningLevel level_ = ISensor::WRONG;
};

} // namespace skyvane
