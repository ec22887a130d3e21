#include "displays/instruments/SegmentFactory.h"

#include "core/Context.h"
#include "core/ini/IniFile.h"
#include "displays/drawing/Drawer2D.h"
#include "displays/gauges/PanelColor.h"
#include "displays/instruments/OneSegmentPanel.h"

namespace skyvane {

void SegmentFactory::loadSetupFromIni(IniFile* ini, std::string section) {
    constexpr uint32_t standardColor = 0xff000080;
    color_ = irr::video::SColor(readColor(*ini, section, "Color", standardColor));
}

FlexibleFont* SegmentFactory::drawPreviewGround(const irr::core::rect<int>& rect) {
    if (!ground_)
        ground_ =
            std::make_unique<SegmentBackground>(context()->getDrawer(), context()->getPath(OneSegmentPanel::imagePath));
    FlexibleFont* font = context()->getFlexibleFont();
    if (!font || !*ground_)
        return nullptr;
    ground_->draw(rect, color_);
    context()->getDrawer()->flush();
    return font;
}

} // namespace skyvane
