#include "displays/instruments/WarningLampFactory.h"

#include "core/ini/IniFile.h"
#include "displays/gauges/PanelColor.h"

namespace skyvane {

void WarningLampFactory::loadSetupFromIni(IniFile* ini, std::string section) {
    type_ = parseWarningType(readValue(*ini, section, "Type", ""));
}

void WarningLampFactory::renderPreview(irr::core::rect<int> rect) {
    const auto found = previews_.try_emplace(type_, context(), type_).first;
    found->second.draw(rect, type_ == WarningType::DEFAULTSENSORS ? sensorLampColor(ISensor::GOOD)
                                                                  : procedureLampColor(LampWatch()));
}

} // namespace skyvane
