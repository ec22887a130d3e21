#include "displays/instruments/TurnRateIndicatorFactory.h"

#include "core/ini/IniFile.h"
#include "core/text/Numbers.h"
#include "displays/gauges/PanelColor.h"

namespace skyvane {

void TurnRateIndicatorFactory::loadSetupFromIni(IniFile* ini, std::string section) {
    drawText_ = toBool(readValue(*ini, section, "DrawText", ""), true);
}

} // namespace skyvane
