#include "gui/input/TouchKeyboard.h"

#include "core/ICommonAppContext.h"
#include "displays/drawing/Drawer2D.h"
#include "gui/keys/KeyboardLayout.h"

namespace skyvane {

TouchKeyboard::TouchKeyboard(ICommonAppContext* context, irr::video::SColor color, const KeyboardDefinition& definition)
    : context_(context), color_(color), editBoxIds_(definition.editBoxIds), keys_(context) {
    const irr::core::dimension2di screen(context->getIrrlichtDevice()->getVideoDriver()->getScreenSize());
    const KeyboardLayout layout = layOutKeyboard(definition, screen, context->getRecommendedButtonHeight());
    area_ = layout.area;
    std::size_t place = 0;
    for (const std::vector<KeyDefinition>& row : definition.rows)
        for (const KeyDefinition& key : row)
            keys_.add(key, layout.keys[place++]);
}

/// On a dark tray, so that nothing behind shows between the keys.
void TouchKeyboard::render() {
    context_->getDrawer()->drawFilledRect(area_, irr::video::SColor(color_.getAlpha(), 5, 7, 10));
    keys_.render(color_);
}

bool TouchKeyboard::processEvent(const irr::SEvent& event) {
    return event.EventType != irr::EET_MOUSE_INPUT_EVENT || !keys_.process(event.MouseInput);
}

} // namespace skyvane
