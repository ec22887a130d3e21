#include "sensors/profiles/GLD90WeatherTraffic.h"

#include "core/ini/IniFile.h"
#include "sensors/ISensorDialogs.h"
#include "sensors/SensorConfig.h"
#include "sensors/profiles/GDL90Config.h"

namespace skyvane {

std::wstring GLD90WeatherTraffic::getName() {
    return L"Tablet/Phone + GDL90 Traffic/Weather";
}

std::wstring GLD90WeatherTraffic::getDescription() {
    return L"Weather and traffic come from a GDL 90 device at port 4000, position and, if you like, attitude (AHRS) "
           L"from the "
           L"tablet or phone.\nConnect this device to the network of the GDL 90 device first.";
}

std::vector<std::string> GLD90WeatherTraffic::neededFactories() const {
    return {FlightStateFactory, GDL90Config::Factory};
}

bool GLD90WeatherTraffic::OnConfigChosen(IniFile* ini) {
    enum { WithAttitude, ReceiverOnly };
    if (!hasFactories())
        return false;
    const int choice = dialogs().choose("Please select your prefered Tablet/Phone sensor usage:",
                                        {"Tablet/Phone Sensors with AHRS", "GPS/GNNS only", "Cancel"});
    if (choice != WithAttitude && choice != ReceiverOnly)
        return false;
    if (choice == WithAttitude && !handleSensors(dialogs(), device()))
        return false;
    writeSensors(*ini, {flightState(choice == WithAttitude ? "INTERNAL_AHRS" : "INTERNAL_GNSS_ONLY"),
                        GDL90Config::gdl90("Generic")});
    for (const int type : {ISensorData::Traffic, ISensorData::UATUplink})
        ini->set("", defaultKey(type), "2");
    return true;
}

} // namespace skyvane
