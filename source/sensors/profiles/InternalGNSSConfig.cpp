#include "sensors/profiles/InternalGNSSConfig.h"

namespace skyvane {

std::wstring InternalGNSSConfig::getName() {
    return L"Int. GPS/GNSS only (no AHRS)";
}

std::wstring InternalGNSSConfig::getDescription() {
    return L"Position, speed and track come from the GPS/GNSS receiver of this device.\nAll visualisations are shown, "
           L"but the attitude is always straight and level.";
}

bool InternalGNSSConfig::OnConfigChosen(IniFile* ini) {
    if (!hasFactories())
        return false;
    writeSensors(*ini, {flightState("INTERNAL_GNSS_ONLY")});
    return true;
}

} // namespace skyvane
