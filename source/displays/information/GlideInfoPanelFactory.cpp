#include "displays/information/GlideInfoPanelFactory.h"

#include "core/Context.h"
#include "core/ini/IniFile.h"
#include "displays/drawing/Drawer2D.h"
#include "displays/gauges/PanelColor.h"
#include "displays/information/GlideInfoPanel.h"
#include "displays/instruments/DialText.h"
#include "displays/instruments/OneSegmentPanel.h"

namespace skyvane {

void GlideInfoPanelFactory::loadSetupFromIni(IniFile* ini, std::string section) {
    constexpr uint32_t standardColor = 0xff000080;
    color_ = irr::video::SColor(readColor(*ini, section, "Color", standardColor));
}

std::unique_ptr<IPanel> GlideInfoPanelFactory::Create() {
    return make<GlideInfoPanel>(color_);
}

void GlideInfoPanelFactory::renderPreview(irr::core::rect<int> rect) {
    FlexibleFont* font = context()->getFlexibleFont();
    if (!previewGround_)
        previewGround_ =
            std::make_unique<SegmentBackground>(context()->getDrawer(), context()->getPath(OneSegmentPanel::imagePath));
    if (!font || !*previewGround_)
        return;
    previewGround_->draw(rect, color_);
    context()->getDrawer()->flush();
    const irr::video::SColor label = OneSegmentPanel::labelColor(color_), value(0xffffffff);
    drawFittedText(font, GlideInfoPanel::ratioLabel, GlideInfoPanel::part(rect, 0, 0, 3, 1), label);
    drawFittedText(font, L"1:--", GlideInfoPanel::part(rect, 0, 1, 1, 2), value);
    drawFittedText(font, L"---", GlideInfoPanel::part(rect, 1, 1, 3, 2), value);
    drawFittedText(font, GlideInfoPanel::averageLabel, GlideInfoPanel::part(rect, 0, 2, 1, 3), label);
    drawFittedText(font, L"---", GlideInfoPanel::part(rect, 1, 2, 3, 3), value);
}

} // namespace skyvane
