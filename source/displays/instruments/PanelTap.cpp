#include "displays/instruments/PanelTap.h"

#include <utility>

namespace skyvane {

PanelTap::Result PanelTap::take(const irr::SEvent& event, const irr::core::rect<int>& area) {
    if (event.EventType != irr::EET_MOUSE_INPUT_EVENT)
        return NotMine;
    const bool inside = area.isPointInside({event.MouseInput.X, event.MouseInput.Y});
    if (event.MouseInput.Event == irr::EMIE_LMOUSE_PRESSED_DOWN) {
        armed_ = inside;
        return inside ? Pressed : NotMine;
    }
    if (event.MouseInput.Event != irr::EMIE_LMOUSE_LEFT_UP)
        return NotMine;
    return std::exchange(armed_, false) && inside ? Tapped : NotMine;
}

} // namespace skyvane
