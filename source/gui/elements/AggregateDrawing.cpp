#include "gui/elements/AggregateGUIElement.h"

#include "core/geometry/Rectangles.h"
#include "gui/skin/Skin.h"

namespace skyvane {

void AggregateGUIElement::draw() {
    if (!isVisible())
        return;
    updateScrollSpeed();
    drawRows();
    for (irr::gui::IGUIElement* child : Children)
        if (child->isNotClipped() || hasArea(child->getAbsoluteClippingRect()))
            child->draw();
}

/// What can be chosen stands on a row, which shows what is.
void AggregateGUIElement::drawRows() const {
    const auto* skin = dynamic_cast<Skin*>(Environment->getSkin());
    if (!skin)
        return;
    for (IAggregatableGUIElement* child : activatable_) {
        const irr::core::rect<irr::s32> clip = child->getAbsoluteClippingRect();
        if (!child->isVisible() || !hasArea(clip))
            continue;
        irr::core::rect<irr::s32> row = child->getAbsolutePosition();
        row.UpperLeftCorner += irr::core::position2di(1, 1);
        row.LowerRightCorner -= irr::core::position2di(1, 1);
        const bool isActive = child->isActive();
        skin->drawRow(row, &clip,
                      skin->getColor(isActive            ? irr::gui::EGDC_HIGH_LIGHT
                                     : child == touched_ ? irr::gui::EGDC_3D_LIGHT
                                                         : irr::gui::EGDC_3D_FACE));
    }
}

} // namespace skyvane
