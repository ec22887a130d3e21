#include "sensors/profiles/ExtGPSConfig.h"

#include "sensors/ISensorDialogs.h"

namespace skyvane {

std::wstring ExtGPSConfig::getName() {
    return L"Ext. GPS/GNSS (using Bluetooth\u00ae)";
}

std::wstring ExtGPSConfig::getDescription() {
    return L"Position, speed and track come from a GPS/GNSS receiver that is connected by Bluetooth\u00ae, the "
           L"attitude, if "
           L"you like, from the sensors of this device.\nPair the receiver in the system's settings first. Without it, "
           L"the receiver of this device is used.";
}

bool ExtGPSConfig::OnConfigChosen(IniFile* ini) {
    enum { WithAttitude, ReceiverOnly };
    if (!hasFactories())
        return false;
    const int choice = dialogs().choose("Please select your combination:",
                                        {"AHRS via tablet/phone gyroscope etc..", "Ext. GPS/GNNS only", "Cancel"});
    if (choice != WithAttitude && choice != ReceiverOnly)
        return false;
    if (choice == WithAttitude && !handleSensors(dialogs(), device()))
        return false;
    if (!dialogs().chooseBluetoothDevice())
        return false;
    writeSensors(*ini, {flightState(choice == WithAttitude ? "EXT_GNSS_AND_AHRS" : "EXT_GNSS_ONLY")});
    return true;
}

} // namespace skyvane
