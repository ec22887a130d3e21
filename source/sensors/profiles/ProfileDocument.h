#pragma once

#include "sensors/ISensorFactory.h"

#include <memory>
#include <string>
#include <vector>

namespace skyvane {

class IniFile;
class ISensorDialogs;

/// What the profiles share: the sensors' part of the configuration document.

/// The place of the factory with that name; negative when there is none.
int findSensorFactory(const std::vector<std::unique_ptr<ISensorFactory>>& factories, const std::string& name);

/// Removes the sections S1, S2, ... that SensorCount tells of, and sets SensorCount to 1.
void deleteAllSensorConfigs(IniFile* ini);

/// All keys of the attitude estimator's section but the mode.
void setFlightStateIMUDefaultValues(IniFile* ini, const std::string& section);

/// What is built into the device.
struct DeviceSensors {
    bool gyroscope = false;
    bool accelerometer = false;
    bool magnetometer = false;
    bool gnss = false;
};

/// True when all four are there; otherwise the user is told which are missing.
bool handleSensors(ISensorDialogs& dialogs, const DeviceSensors& present);

} // namespace skyvane
