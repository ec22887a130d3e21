#include "displays/instruments/OneSegmentPanelFactory.h"

#include "core/Context.h"
#include "core/ini/IniFile.h"
#include "displays/drawing/Drawer2D.h"
#include "displays/gauges/PanelColor.h"
#include "displays/instruments/DialText.h"
#include "displays/instruments/OneSegmentPanel.h"

namespace skyvane {

namespace {

constexpr uint32_t standardColor = 0xff000080;

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
    drawFittedText(font, segmentPreviewLabel(type_), OneSegmentPanel::upperHalf(rect),
                   OneSegmentPanel::labelColor(color_));
    drawFittedText(font, L"---", OneSegmentPanel::lowerHalf(rect), irr::video::SColor(0xffffffff));
}

} // namespace skyvane
