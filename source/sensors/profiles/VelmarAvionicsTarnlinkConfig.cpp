#include "sensors/profiles/VelmarAvionicsTarnlinkConfig.h"

namespace skyvane {

std::wstring VelmarAvionicsTarnlinkConfig::getName() {
    return L"Velmar Avionics Tarnlink";
}

std::wstring VelmarAvionicsTarnlinkConfig::getDescription() {
    return L"Position, attitude, traffic and radios come from a Tarnlink unit in the aircraft.\nConnect this device to "
           L"the "
           L"unit's network before you choose this profile.";
}

std::wstring VelmarAvionicsTarnlinkConfig::getObstacle() {
    return L"This profile needs the link to a Tarnlink unit, which this version of Skyvane doesn't have yet.";
}

bool VelmarAvionicsTarnlinkConfig::OnConfigChosen(IniFile* ini) {
    if (!hasFactories())
        return false;
    writeSensors(*ini, {flightState("TARNLINK")});
    return true;
}

} // namespace skyvane
