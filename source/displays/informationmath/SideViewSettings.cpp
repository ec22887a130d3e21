#include "displays/informationmath/SideViewSettings.h"

#include "core/ini/IniFile.h"
#include "core/text/Numbers.h"

namespace skyvane {

SideViewSettings SideViewSettings::read(IniFile& ini, const std::string& section) {
    SideViewSettings settings;
    if (!ini.isAvailable(section, "maxDist"))
        return settings;
    const double metres = toDouble(ini.get(section, "maxDist"), settings.maxDistMetres);
    if (metres >= 0.0)
        settings.maxDistMetres = metres;
    return settings;
}

} // namespace skyvane
