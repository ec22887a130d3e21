#include "displays/information/GliderPanelFactory.h"

#include "core/ini/IniFile.h"
#include "core/text/Numbers.h"
#include "displays/gauges/PanelColor.h"

#include <algorithm>

namespace skyvane {

void GliderPanelFactory::loadSetupFromIni(IniFile* ini, std::string section) {
    const GliderPanel::Style standard;
    style_.color1 = irr::video::SColor(readColor(*ini, section, "color1", standard.color1.color));
    style_.color2 = irr::video::SColor(readColor(*ini, section, "color2", standard.color2.color));
    style_.units = parseGlideUnits(readValue(*ini, section, "units", ""));
    const int standardSpan = static_cast<int>(standard.averageMilliseconds);
    const int span = toInt(readValue(*ini, section, "averageTimeSpan", ""), standardSpan);
    style_.averageMilliseconds = span > 0 ? static_cast<unsigned>(span) : standard.averageMilliseconds;
}

} // namespace skyvane
