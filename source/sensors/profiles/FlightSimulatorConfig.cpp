#include "sensors/profiles/FlightSimulatorConfig.h"

#include "sensors/ISensorDialogs.h"

namespace skyvane {

std::wstring FlightSimulatorConfig::getName() {
    return L"Flight Simulator";
}

std::wstring FlightSimulatorConfig::getDescription() {
    return L"All data comes from X-Plane or FlightGear. What is shown is NOT the actual situation.\nX-Plane sends its "
           L"data "
           L"output to UDP port 49000 of this computer, FlightGear the protocol that comes with Skyvane to port 6789.";
}

bool FlightSimulatorConfig::OnConfigChosen(IniFile* ini) {
    const char* const simulators[] = {FlightGear, XPlane};
    if (!hasFactories())
        return false;
    const int choice = dialogs().choose("Please select your Flight Simulator:", {"FlightGear", "XPlane", "Cancel"});
    if (choice != 0 && choice != 1)
        return false;
    writeSensors(*ini, {{simulators[choice], nullptr}});
    return true;
}

} // namespace skyvane
