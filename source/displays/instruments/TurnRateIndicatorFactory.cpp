#include "displays/instruments/TurnRateIndicatorFactory.h"

#include "core/ini/IniFile.h"
#include "core/text/Numbers.h"
#include "displays/gauges/PanelColor.h"

namespace skyvane {

void TurnRateIndicatorFactory::loadSetupFromIni(IniFile* ini, std::string section) {
    drawText_ = toBool(readValue(*ini, section, "DrawText", ""), true);
}

bool TurnRateIndicatorFactory::setup(IniFile* ini, std::string section) {
    ini->set(section, "DrawText", readValue(*ini, section, "DrawText", "1"));
    return DialFactory::setup(ini, section);
}

} // namespace skyvane
