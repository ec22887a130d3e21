#include "sensors/gdl90/GDL90SensorFactory.h"

#include "core/ini/ReadValue.h"
#include "sensors/ISensorDialogs.h"
#include "sensors/SensorConfig.h"
#include "sensors/gdl90/GDL90Records.h"
#include "sensors/gdl90/GDL90Sensor.h"

#include <utility>

namespace skyvane {
namespace {

constexpr wchar_t Schema[] = L"port,Port:,4000,INT;flavor,Flavor:,Generic\\;Talos\\;Levil\\;uAvionix,ONE_OF;";
constexpr int LargestPort = 65535;

GDL90Flavor flavorOf(const std::string& name) {
    if (name == "Talos")
        return GDL90Flavor::Talos;
    if (name == "Levil")
        return GDL90Flavor::Levil;
    return name == "uAvionix" ? GDL90Flavor::UAvionix : GDL90Flavor::Generic;
}

} // namespace

GDL90SensorFactory::GDL90SensorFactory(SensorManager* sensors, ISensorDialogs* dialogs, CalibrationWindow window)
    : NoSetupGUISensorFactory("GDL90 compatible device", GDL90Records::types()), sensors_(sensors), dialogs_(dialogs),
      window_(std::move(window)) {}

void GDL90SensorFactory::loadSetupFromIni(IniFile* ini, std::string section) {
    port_ = readNumberWithin(*ini, section, "port", 0, LargestPort, DefaultPort);
    flavor_ = flavorOf(readValue(*ini, section, "flavor"));
}

bool GDL90SensorFactory::setup(IniFile* ini, std::string section) {
    dialogs_->offerNetwork();
    return editSection(*dialogs_, *ini, section, getName(), Schema, "Receivers.hti");
}

std::unique_ptr<ISensor> GDL90SensorFactory::Create() {
    return std::make_unique<GDL90Sensor>(this, sensors_, port_, flavor_);
}

void GDL90SensorFactory::calibrate(GDL90Sensor& sensor) {
    if (!sensor.isConnected())
        dialogs_->tell("Error: GDL90 interface in use but no GDL90 device connected.");
    else if (window_)
        window_(sensor);
}

} // namespace skyvane
