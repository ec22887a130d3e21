#include "sensors/profiles/SensorProfile.h"

#include "core/ini/IniFile.h"
#include "core/log/Logger.h"
#include "core/text/Numbers.h"
#include "core/text/Utf8.h"
#include "sensors/ISensorDialogs.h"
#include "sensors/SensorConfig.h"
#include "sensors/SensorManager.h"

namespace skyvane {

std::wstring SensorProfile::getObstacle() {
    for (const std::string& name : neededFactories())
        if (findSensorFactory(parts_.sensors->getSensorFactories(), name) < 0)
            return name == FlightStateFactory
                       ? L"This profile needs the estimator of position and attitude, which this version of Skyvane "
                         L"doesn't have yet."
                       : L"This profile needs a kind of sensor that this version of Skyvane doesn't have yet.";
    return {};
}

bool SensorProfile::hasFactories() {
    const std::wstring obstacle = getObstacle();
    if (obstacle.empty())
        return true;
    logText(neededFactories().size() > 1 ? "Fatal error: SensorFactories not found.\n"
                                         : "Fatal error: SensorFactory not found.\n");
    parts_.dialogs->tell(encodeUtf8(obstacle) + "\nNothing has been changed.");
    return false;
}

void SensorProfile::writeSensors(IniFile& ini, const std::vector<SensorEntry>& entries) const {
    deleteAllSensorConfigs(&ini);
    parts_.sensors->setAllPossibleDefaults(&ini, 0);
    ini.set("", "SensorCount", toText(static_cast<int>(entries.size()) + 1));
    for (size_t i = 0; i < entries.size(); ++i) {
        const std::string section = sensorSection(static_cast<int>(i) + 1);
        ini.set(section, "FactoryName", entries[i].factory);
        ini.set(section, "FactoryIndex",
                toText(findSensorFactory(parts_.sensors->getSensorFactories(), entries[i].factory)));
        if (entries[i].fill)
            entries[i].fill(ini, section);
    }
    parts_.sensors->setAllPossibleDefaults(&ini, 1);
}

SensorProfile::SensorEntry SensorProfile::flightState(const std::string& configMode) {
    return {FlightStateFactory, [configMode](IniFile& ini, const std::string& section) {
                ini.set(section, "configMode", configMode);
                setFlightStateIMUDefaultValues(&ini, section);
            }};
}

} // namespace skyvane
