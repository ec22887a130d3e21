#include "gui/skin/TouchList.h"

#include <algorithm>
#include <cstring>

namespace skyvane {
namespace {

/// What the engine's list needs beside its rows.
constexpr int border = 2;
const char* const fittedName = "fitted";

irr::core::rect<irr::s32> screenOf(irr::gui::IGUIElement* element) {
    while (element->getParent())
        element = element->getParent();
    return element->getAbsolutePosition();
}

} // namespace

void fitListToFingers(irr::gui::IGUIListBox* list, int rowHeight) {
    if (std::strcmp(list->getName(), fittedName) == 0)
        return;
    list->setName(fittedName);
    irr::gui::IGUIElement* box = list->getParent();
    const irr::core::rect<irr::s32> own = box->getAbsolutePosition(), screen = screenOf(box);
    const int above = own.UpperLeftCorner.Y - screen.UpperLeftCorner.Y;
    const int below = screen.LowerRightCorner.Y - own.LowerRightCorner.Y;
    const int wanted = static_cast<int>(list->getItemCount()) * rowHeight + 2 * border;
    const bool isBelow = wanted <= below || below >= above;
    const int height = std::min(wanted, std::max(rowHeight, isBelow ? below : above));
    const int top = isBelow ? own.getHeight() : -height;
    const irr::core::rect<irr::s32> fitting(0, top, own.getWidth(), top + height);
    list->setItemHeight(rowHeight);
    list->setRelativePosition(fitting);
}

} // namespace skyvane
