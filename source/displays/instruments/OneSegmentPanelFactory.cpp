#include "displays/instruments/OneSegmentPanelFactory.h"

#include "core/Context.h"
#include "core/ini/IniFile.h"
#include "displays/drawing/Drawer2D.h"
#include "displays/gauges/PanelColor.h"
#include "displays/instruments/OneSegmentPanel.h"
#include "gui/font/FlexibleFont.h"

namespace skyvane {

namespace {

constexpr uint32_t standardColor = 0xff000080;

void drawFitted(FlexibleFont* font, const wchar_t* text, const irr::core::rect<int>& box, irr::video::SColor color) {
    if (box.getWidth() < 1 || box.getHeight() < 1)
        return;
    const irr::core::vector2d<float> before = font->getDefaultScale();
    const float scale = font->calculateOptimalScale(
        text, {static_cast<irr::u32>(box.getWidth()), static_cast<irr::u32>(box.getHeight())});
    font->setDefaultScale({scale, scale});
    font->draw(text, box, color, true, true);
    font->setDefaultScale(before);
}

} // namespace

void OneSegmentPanelFactory::loadSetupFromIni(IniFile* ini, std::string section) {
    type_ = parseSegmentType(readValue(*ini, section, "Type", ""));
    color_ = irr::video::SColor(readColor(*ini, section, "Color", standardColor));
}

std::unique_ptr<IPanel> OneSegmentPanelFactory::Create() {
    return make<OneSegmentPanel>(color_, type_);
}

void OneSegmentPanelFactory::renderPreview(irr::core::rect<int> rect) {
    FlexibleFont* font = context()->getFlexibleFont();
    if (!previewGround_)
        previewGround_ =
            std::make_unique<SegmentBackground>(context()->getDrawer(), context()->getPath(OneSegmentPanel::imagePath));
    if (!font || !*previewGround_)
        return;
    previewGround_->draw(rect, color_);
    context()->getDrawer()->flush();
    drawFitted(font, segmentPreviewLabel(type_), OneSegmentPanel::upperHalf(rect), OneSegmentPanel::labelColor(color_));
    drawFitted(font, L"---", OneSegmentPanel::lowerHalf(rect), irr::video::SColor(0xffffffff));
}

} // namespace skyvane
