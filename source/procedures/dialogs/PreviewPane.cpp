#include "procedures/dialogs/PreviewPane.h"

#include "core/Context.h"
#include "displays/drawing/Drawer2D.h"

namespace skyvane {
namespace {

const irr::video::SColor groundColor(0xff10161d), rimColor(0xff5a6472);

} // namespace

PreviewPane::PreviewPane(Context& context, irr::gui::IGUIElement* parent, const irr::core::rect<int>& place,
                         Paint paint)
    : IGUIElement(irr::gui::EGUIET_ELEMENT, context.getIrrlichtDevice()->getGUIEnvironment(), parent, -1, place),
      context_(context), paint_(std::move(paint)) {}

irr::gui::IGUIElement* PreviewPane::add(Context& context, irr::gui::IGUIElement* parent,
                                        const irr::core::rect<int>& place, Paint paint) {
    auto* pane = new PreviewPane(context, parent, place, std::move(paint));
    pane->drop();
    return pane;
}

void PreviewPane::draw() {
    if (!isVisible())
        return;
    Drawer2D* drawer = context_.getDrawer();
    drawer->resetViewPort();
    drawer->drawFilledRect(AbsoluteRect, groundColor);
    paint_(AbsoluteRect);
    drawer->resetViewPort();
    drawer->drawOutline(AbsoluteRect, rimColor);
    drawer->flush();
    IGUIElement::draw();
}

} // namespace skyvane
