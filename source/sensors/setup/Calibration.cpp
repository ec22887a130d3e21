#include "sensors/setup/Calibration.h"

#include "core/Context.h"
#include "core/text/Utf8.h"
#include "sensors/SensorManager.h"

namespace skyvane {

void calibrateSensors(Context& context) {
    if (!context.getSensorManager()->OnCalibrationButtonPressed())
        context.showMessageBox("The sensor currently in use does not support calibration.");
}

std::wstring calibrationLabel(Context& context) {
    SensorManager& sensors = *context.getSensorManager();
    for (int i = 0; i < sensors.getSensorInterfaceCount(); ++i)
        if (const char* label = sensors.getSensorInterface(i)->getCalibLabelOverride())
            return decodeUtf8(label);
    return L"Calib.";
}

} // namespace skyvane
