#include "gui/elements/ScrollBar.h"

#include "gui/elements/IScrollable.h"
#include "gui/skin/Skin.h"

#include <algorithm>

namespace skyvane {
namespace {

float heldTo01(float value) {
    return value > 0.0f ? std::min(value, 1.0f) : 0.0f;
}

} // namespace

ScrollBar::ScrollBar(irr::gui::IGUIEnvironment* environment, float ratio, bool horizontal, int id, void* data,
                     const LayoutWish& wish, irr::gui::IGUIElement* parent, const irr::core::rect<irr::s32>& rectangle)
    : AggregatableGUIElement(environment, wish, id, data, parent, rectangle), ratio_(heldTo01(ratio)),
      horizontal_(horizontal) {}

ScrollBar::~ScrollBar() {
    unlinkScrollable();
}

void ScrollBar::linkToScrollable(IScrollable* scrollable) {
    if (scrollable == scrollable_)
        return;
    unlinkScrollable();
    scrollable_ = scrollable;
    if (scrollable_)
        scrollable_->setScrollBar(this);
}

void ScrollBar::unlinkScrollable() {
    IScrollable* former = scrollable_;
    scrollable_ = nullptr;
    if (former)
        former->setScrollBar(nullptr);
}

void ScrollBar::setPos(float position, bool notify) {
    position_ = heldTo01(position);
    if (notify && scrollable_)
        scrollable_->setScrollShare(position_);
}

void ScrollBar::setRatio(float ratio) {
    ratio_ = heldTo01(ratio);
}

irr::core::rect<irr::s32> ScrollBar::thumb() const {
    irr::core::rect<irr::s32> place = AbsoluteRect;
    const int length = horizontal_ ? place.getWidth() : place.getHeight();
    const int breadth = horizontal_ ? place.getHeight() : place.getWidth();
    const int thumbLength = std::min(length, std::max(breadth, static_cast<int>(ratio_ * static_cast<float>(length))));
    const int start = static_cast<int>(position_ * static_cast<float>(length - thumbLength) + 0.5f);
    if (horizontal_) {
        place.UpperLeftCorner.X += start;
        place.LowerRightCorner.X = place.UpperLeftCorner.X + thumbLength;
    } else {
        place.UpperLeftCorner.Y += start;
        place.LowerRightCorner.Y = place.UpperLeftCorner.Y + thumbLength;
    }
    return place;
}

void ScrollBar::draw() {
    if (!isVisible())
        return;
    if (const auto* skin = dynamic_cast<Skin*>(Environment->getSkin())) {
        skin->drawRow(AbsoluteRect, &AbsoluteClippingRect, skin->getColor(irr::gui::EGDC_SCROLLBAR));
        if (ratio_ < 1.0f)
            skin->drawRow(thumb(), &AbsoluteClippingRect,
                          skin->getColor(dragging_ ? irr::gui::EGDC_WINDOW_SYMBOL : irr::gui::EGDC_GRAY_WINDOW_SYMBOL));
    }
    IGUIElement::draw();
}

bool ScrollBar::OnEvent(const irr::SEvent& event) {
    if (isEnabled()) {
        if (event.EventType == irr::EET_MOUSE_INPUT_EVENT && handleMouse(event.MouseInput))
            return true;
        if (event.EventType == irr::EET_GUI_EVENT && event.GUIEvent.Caller == this &&
            event.GUIEvent.EventType == irr::gui::EGET_ELEMENT_FOCUS_LOST)
            dragging_ = false;
    }
    return IGUIElement::OnEvent(event);
}

bool ScrollBar::handleMouse(const irr::SEvent::SMouseInput& mouse) {
    const irr::core::position2di place(mouse.X, mouse.Y);
    const irr::core::rect<irr::s32> held = thumb();
    const int length = along(held.LowerRightCorner) - along(held.UpperLeftCorner);
    switch (mouse.Event) {
    case irr::EMIE_LMOUSE_PRESSED_DOWN:
        dragging_ = true;
        grabbedAt_ = held.isPointInside(place) ? along(place) - along(held.UpperLeftCorner) : length / 2;
        break;
    case irr::EMIE_LMOUSE_LEFT_UP:
        dragging_ = false;
        return true;
    case irr::EMIE_MOUSE_MOVED:
        if (!dragging_)
            return false;
        break;
    default:
        return false;
    }
    const int room = along(AbsoluteRect.LowerRightCorner) - along(AbsoluteRect.UpperLeftCorner) - length;
    const int start = along(place) - grabbedAt_ - along(AbsoluteRect.UpperLeftCorner);
    if (room > 0)
        setPos(static_cast<float>(start) / static_cast<float>(room), true);
    return true;
}

} // namespace skyvane
