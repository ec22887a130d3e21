#include "sensors/profiles/GDL90Config.h"

#include "core/ini/IniFile.h"

namespace skyvane {

std::wstring GDL90Config::getName() {
    return L"Stratux or Compatible GDL90 Device";
}

std::wstring GDL90Config::getDescription() {
    return L"Position, traffic and weather, and with many devices the attitude, come from a device that speaks GDL "
           L"90.\n"
           L"Connect this device to its network first. Port 4000 is the default; for another port choose \"Custom\".";
}

SensorProfile::SensorEntry GDL90Config::gdl90(const std::string& flavor) {
    return {Factory, [flavor](IniFile& ini, const std::string& section) {
                ini.set(section, "port", "4000");
                ini.set(section, "flavor", flavor);
            }};
}

bool GDL90Config::OnConfigChosen(IniFile* ini) {
    if (!hasFactories())
        return false;
    writeSensors(*ini, {gdl90(flavor())});
    return true;
}

} // namespace skyvane
