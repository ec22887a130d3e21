#include "displays/instruments/SlipIndicatorFactory.h"

#include "core/geometry/Rectangles.h"
#include "core/ini/IniFile.h"
#include "core/text/Numbers.h"
#include "displays/gauges/PanelColor.h"
#include "displays/gauges/TurnGauge.h"

namespace skyvane {

void SlipIndicatorFactory::loadSetupFromIni(IniFile* ini, std::string section) {
    const SlipStyle standard;
    style_.drawText = toBool(readValue(*ini, section, "drawText", ""), standard.drawText);
    style_.background = irr::video::SColor(readColor(*ini, section, "pfdColor", standard.background.color));
    style_.text = irr::video::SColor(readColor(*ini, section, "Color", standard.text.color));
}

irr::core::rect<int> SlipIndicatorFactory::previewRect(const irr::core::rect<int>& rect) const {
    return makeXic(rect, slipAspect);
}

} // namespace skyvane
