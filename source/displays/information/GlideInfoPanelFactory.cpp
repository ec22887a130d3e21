#include "displays/information/GlideInfoPanelFactory.h"

#include "displays/information/GlideInfoPanel.h"
#include "displays/instruments/DialText.h"
#include "displays/instruments/OneSegmentPanel.h"

namespace skyvane {

std::unique_ptr<IPanel> GlideInfoPanelFactory::Create() {
    return make<GlideInfoPanel>(getColor());
}

void GlideInfoPanelFactory::renderPreview(irr::core::rect<int> rect) {
    FlexibleFont* font = drawPreviewGround(rect);
    if (!font)
        return;
    const irr::video::SColor label = OneSegmentPanel::labelColor(getColor()), value(0xffffffff);
    drawFittedText(font, GlideInfoPanel::ratioLabel, GlideInfoPanel::part(rect, 0, 0, 3, 1), label);
    drawFittedText(font, L"1:--", GlideInfoPanel::part(rect, 0, 1, 1, 2), value);
    drawFittedText(font, L"---", GlideInfoPanel::part(rect, 1, 1, 3, 2), value);
    drawFittedText(font, GlideInfoPanel::averageLabel, GlideInfoPanel::part(rect, 0, 2, 1, 3), label);
    drawFittedText(font, L"---", GlideInfoPanel::part(rect, 1, 2, 3, 3), value);
}

} // namespace skyvane
