// What fingers and buttons do to a side view.
#include "core/Context.h"
#include "core/engine/TouchEvents.h"
#include "displays/PanelManager.h"
#include "displays/information/SideViewPanel.h"

namespace skyvane {

void SideViewPanel::OnPageChange() {
    OnHideGUI();
    pinch_ = SidePinch(); // fingers that leave the glass on another page aren't told here
}

bool SideViewPanel::processEvent(irr::SEvent event) {
    if (event.EventType == irr::EET_GUI_EVENT)
        return !press(buttons_.findClicked(event));
    if (isTouchEvent(event))
        return processTouch(unpackTouchEvent(event));
    if (event.EventType == irr::EET_MOUSE_INPUT_EVENT)
        return processMouse(event.MouseInput);
    return true;
}

bool SideViewPanel::processMouse(const irr::SEvent::SMouseInput& mouse) {
    const irr::core::vector2d<int> place(mouse.X, mouse.Y);
    if (mouse.Event != irr::EMIE_LMOUSE_PRESSED_DOWN || !rect_.isPointInside(place) || !profileNumber_)
        return true;
    buttons_.touch();
    const ScreenMetrics& metrics = context_->getScreenMetrics();
    scene_.selected = findSideStop(stops_, scene_.axes, ShapePoint(place.X, place.Y),
                                   ShapePoint(metrics.buttonWidth, metrics.buttonHeight));
    return false;
}

bool SideViewPanel::processTouch(const TouchEvent& touch) {
    switch (touch.phase) {
    case TouchEvent::Pressed:
        if (!rect_.isPointInside({touch.x, touch.y}) || !profileNumber_)
            return true;
        pinch_.down(touch.id, touch.x, touch.y, range_.getTop());
        return !pinch_.isActive();
    case TouchEvent::Moved:
        if (!pinch_.moved(touch.id, touch.x, touch.y))
            return true;
        range_.choose(pinch_.getTop());
        return false;
    case TouchEvent::Left:
        break;
    }
    pinch_.up(touch.id);
    return true;
}

/// True when it was one of the panel's.
bool SideViewPanel::press(SideButton::Kind button) {
    PanelManager* panels = context_->getPanelManager();
    switch (button) {
    case SideButton::Airspaces:
        showsAirspaces_ = true;
        search_ = Search::Wanted;
        break;
    case SideButton::Narrow:
        range_.narrow();
        break;
    case SideButton::Center:
        range_.center();
        break;
    case SideButton::Widen:
        range_.widen();
        break;
    case SideButton::Ahead:
        looksAhead_ = !looksAhead_;
        break;
    case SideButton::FullScreen:
        panels->setFullScreenPanel(panels->getFullScreenPanel() == this ? nullptr : this);
        break;
    case SideButton::Count:
        return false;
    }
    buttons_.touch();
    return true;
}

} // namespace skyvane
