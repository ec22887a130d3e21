#pragma once

#include "gui/elements/AggregatableGUIElement.h"

namespace skyvane {

/// Makes any element of the engine a child of a layout: it fills the adapter. A drag that begins on it scrolls the list
/// around it, and then it doesn't click.
class AggregatableGUIElementAdapter : public AggregatableGUIElement {
public:
    /// The element leaves its parent for this one. It keeps the maker's reference, if the maker kept one.
    AggregatableGUIElementAdapter(irr::gui::IGUIEnvironment* environment, irr::gui::IGUIElement* element,
                                  const LayoutWish& wish = LayoutWish(), int id = -1, void* data = nullptr);

    irr::gui::IGUIElement* getElement() const { return element_; }

    void setActivationLock(bool locked) override;
    void updateAbsolutePosition() override;
    void removeChild(irr::gui::IGUIElement* child) override;

private:
    class Shield;
    void press(const irr::SEvent& event);
    void raise();

    irr::gui::IGUIElement* element_; ///< A child, or null once it was removed.
};

} // namespace skyvane
