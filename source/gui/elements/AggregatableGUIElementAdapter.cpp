#include "gui/elements/AggregatableGUIElementAdapter.h"

namespace skyvane {

/// Lies over the element unseen, so that the list hears of a finger before the element, which would keep it to itself.
class AggregatableGUIElementAdapter::Shield : public irr::gui::IGUIElement {
public:
    Shield(irr::gui::IGUIEnvironment* environment, AggregatableGUIElementAdapter* owner)
        : IGUIElement(irr::gui::EGUIET_ELEMENT, environment, owner, -1, {0, 0, 1, 1}), owner_(owner) {
        setSubElement(true);
    }

    bool OnEvent(const irr::SEvent& event) override {
        const bool isPress =
            event.EventType == irr::EET_MOUSE_INPUT_EVENT && event.MouseInput.Event == irr::EMIE_LMOUSE_PRESSED_DOWN;
        if (!isPress)
            return IGUIElement::OnEvent(event);
        IGUIElement::OnEvent(event);
        owner_->press(event);
        return true;
    }

private:
    AggregatableGUIElementAdapter* owner_;
};

AggregatableGUIElementAdapter::AggregatableGUIElementAdapter(irr::gui::IGUIEnvironment* environment,
                                                             irr::gui::IGUIElement* element, const LayoutWish& wish,
                                                             int id, void* data)
    : AggregatableGUIElement(environment, wish, id, data), element_(element) {
    if (element_)
        addChild(element_);
    (new Shield(environment, this))->drop();
    AggregatableGUIElementAdapter::updateAbsolutePosition();
}

/// What a combo box opens hangs over the rows that follow: its own row must be the last to be drawn and the first to be
/// hit.
void AggregatableGUIElementAdapter::raise() {
    irr::gui::IGUIElement* element = this;
    while (dynamic_cast<IAggregatableGUIElement*>(element->getParent())) {
        element->getParent()->bringToFront(element);
        element = element->getParent();
    }
}

/// The press goes to what the shield covers there; that takes the focus, and with it what the finger does next.
void AggregatableGUIElementAdapter::press(const irr::SEvent& event) {
    const irr::core::position2di place(event.MouseInput.X, event.MouseInput.Y);
    irr::gui::IGUIElement* target = element_ ? element_->getElementFromPoint(place) : nullptr;
    if (!target || !target->isEnabled())
        return;
    raise();
    Environment->setFocus(target);
    target->OnEvent(event);
}

void AggregatableGUIElementAdapter::setActivationLock(bool locked) {
    AggregatableGUIElement::setActivationLock(locked);
    irr::gui::IGUIElement* focus = Environment->getFocus();
    if (locked && element_ && focus && (focus == element_ || element_->isMyChild(focus)))
        Environment->setFocus(this); // what loses the focus forgets that it was pressed
}

void AggregatableGUIElementAdapter::updateAbsolutePosition() {
    recalculateAbsolutePosition(false);
    const irr::core::rect<irr::s32> whole(0, 0, AbsoluteRect.getWidth(), AbsoluteRect.getHeight());
    for (irr::gui::IGUIElement* child : Children)
        child->setRelativePosition(whole);
}

void AggregatableGUIElementAdapter::removeChild(irr::gui::IGUIElement* child) {
    if (child == element_)
        element_ = nullptr;
    IGUIElement::removeChild(child);
}

} // namespace skyvane
