#include "displays/instruments/OneSegmentPanelFactory.h"

#include "core/ini/IniFile.h"
#include "displays/gauges/PanelColor.h"
#include "displays/instruments/DialText.h"
#include "displays/instruments/OneSegmentPanel.h"

namespace skyvane {

void OneSegmentPanelFactory::loadSetupFromIni(IniFile* ini, std::string section) {
    type_ = parseSegmentType(readValue(*ini, section, "Type", ""));
    SegmentFactory::loadSetupFromIni(ini, section);
}

std::unique_ptr<IPanel> OneSegmentPanelFactory::Create() {
    return make<OneSegmentPanel>(getColor(), type_);
}

void OneSegmentPanelFactory::renderPreview(irr::core::rect<int> rect) {
    FlexibleFont* font = drawPreviewGround(rect);
    if (!font)
        return;
    drawFittedText(font, segmentPreviewLabel(type_), OneSegmentPanel::upperHalf(rect),
                   OneSegmentPanel::labelColor(getColor()));
    drawFittedText(font, L"---", OneSegmentPanel::lowerHalf(rect), irr::video::SColor(0xffffffff));
}

} // namespace skyvane
