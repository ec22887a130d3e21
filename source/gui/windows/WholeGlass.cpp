#include "gui/windows/WholeGlass.h"

namespace skyvane {

/// The veil of a modal dialog is visible as long as what stands on it is.
WholeGlass::WholeGlass(irr::gui::IGUIEnvironment* environment) {
    for (irr::gui::IGUIElement* element : environment->getRootGUIElement()->getChildren()) {
        if (element->getType() != irr::gui::EGUIET_MODAL_SCREEN)
            hide(element);
        else
            for (irr::gui::IGUIElement* window : element->getChildren())
                hide(window);
    }
}

WholeGlass::~WholeGlass() {
    for (const auto& element : hidden_)
        element->setVisible(true);
}

void WholeGlass::hide(irr::gui::IGUIElement* element) {
    if (!element->isVisible())
        return;
    hidden_.push_back(EngineRef<irr::gui::IGUIElement>::share(element));
    element->setVisible(false);
}

} // namespace skyvane
