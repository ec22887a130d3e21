#include "sensors/profiles/ProfileDocument.h"

#include "core/ini/IniFile.h"
#include "core/text/Numbers.h"
#include "sensors/ISensorDialogs.h"
#include "sensors/SensorConfig.h"

namespace skyvane {
namespace {

/// Documents with more sensors than that don't come from here; a lying count shall cost no time.
constexpr int MostSections = 1000;

struct KeyAndValue {
    const char* key;
    const char* value;
};

constexpr KeyAndValue FlightStateDefaults[] = {{"timeout", "2000"},
                                               {"lmodeSelected", "0"},
                                               {"AccSigma", "0.33"},
                                               {"MagSigma", "0.33"},
                                               {"AngularSigma", "1.5"},
                                               {"restAccThreshhold", "0.1"},
                                               {"restGyrThreshhold", "0.24"},
                                               {"FallbackSpeed", "120"},
                                               {"slerpPerSecond", "0.7"},
                                               {"RollContribution", "0.25"},
                                               {"UseGPSFilter", "1"},
                                               {"MaxAcc", "1"},
                                               {"gpsK", "1"},
                                               {"autoCalibFactor", "0.4"},
                                               {"autoCalibRecoveryTime", "36000"}};

} // namespace

int findSensorFactory(const std::vector<std::unique_ptr<ISensorFactory>>& factories, const std::string& name) {
    for (size_t i = 0; i < factories.size(); ++i)
        if (factories[i] && factories[i]->getName() == name)
            return static_cast<int>(i);
    return -1;
}

void deleteAllSensorConfigs(IniFile* ini) {
    const int count = readNumberWithin(*ini, "", "SensorCount", 0, MostSections, MostSections);
    for (int n = 1; n < count; ++n)
        ini->removeSection(sensorSection(n));
    ini->set("", "SensorCount", toText(1));
}

void setFlightStateIMUDefaultValues(IniFile* ini, const std::string& section) {
    for (const KeyAndValue& entry : FlightStateDefaults)
        ini->set(section, entry.key, entry.value);
}

bool handleSensors(ISensorDialogs& dialogs, const DeviceSensors& present) {
    if (present.gyroscope && present.accelerometer && present.magnetometer && present.gnss)
        return true;
    std::string text = "Error: A gyroscope, accelerometer, magnetometer and GPS/GNSS receiver is required.\n";
    text += present.gyroscope ? "" : "Gyroscope is missing.\n";
    text += present.accelerometer ? "" : "Accelerometer is missing.\n";
    text += present.magnetometer ? "" : "Magnetometer is missing.\n";
    text += present.gnss ? "" : "GNSS/GPS is missing.\n";
    dialogs.tell(text);
    return false;
}

} // namespace skyvane
