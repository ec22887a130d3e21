#include "sensors/setup/SetUpSensors.h"

#include "core/Context.h"
#include "core/files/SafeFile.h"
#include "core/ini/IniFile.h"
#include "sensors/SensorManager.h"
#include "sensors/setup/SensorSetup.h"

namespace skyvane {

void setUpSensors(Context& context) {
    const std::string path = context.getConfigPath();
    IniFile config(path);
    if (!SensorSetup(&context).run(&config))
        return;
    if (const int error = saveFileSafely(path, config.toString()))
        return context.showMessageBox("The sensors could not be saved. " + whyNotWritten(error));
    context.getSensorManager()->unload();
    context.getSensorManager()->loadSensorSettingsFromIni(&config, false);
}

} // namespace skyvane
