#include "sensors/profiles/InternalSensorConfig.h"

namespace skyvane {

std::wstring InternalSensorConfig::getName() {
    return L"Tablet/Phone Sensors (AHRS)";
}

std::wstring InternalSensorConfig::getDescription() {
    return L"Position, speed, heading and attitude come from the sensors of this device.\nThe device must be mounted "
           L"firmly "
           L"and mustn't be moved in flight. Calibrate it before take-off: the aircraft stands still and level then.";
}

bool InternalSensorConfig::OnConfigChosen(IniFile* ini) {
    if (!hasFactories() || !handleSensors(dialogs(), device()))
        return false;
    writeSensors(*ini, {flightState("INTERNAL_AHRS")});
    return true;
}

} // namespace skyvane
