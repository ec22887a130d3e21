// How fingers, mouse and buttons move the camera of a synthetic view.
#include "core/Context.h"
#include "core/engine/TouchEvents.h"
#include "displays/PanelManager.h"
#include "displays/vision/Map3D.h"
#include "displays/vision/VisionOptions.h"
#include "gui/menu/Menu.h"
#include "gui/windows/Help.h"

#include <cmath>

namespace skyvane {
namespace {

constexpr double zoomOfWheel = 1.15;

} // namespace

bool Map3D::processEvent(irr::SEvent event) {
    switch (buttons_.clickedBy(event)) {
    case SceneButtons::Button::Center:
        orbit_.reset();
        buttons_.hide();
        return false;
    case SceneButtons::Button::Options:
        buttons_.hide();
        openOptions();
        return false;
    case SceneButtons::Button::Help:
        buttons_.hide();
        showHelp(context_, "Map3D.hti");
        return false;
    case SceneButtons::Button::None:
        break;
    }
    if (isTouchEvent(event))
        return processTouch(event);
    return event.EventType != irr::EET_MOUSE_INPUT_EVENT || processMouse(event.MouseInput);
}

bool Map3D::processTouch(const irr::SEvent& event) {
    const TouchEvent touch = unpackTouchEvent(event);
    if (touch.phase == TouchEvent::Pressed && !rect_.isPointInside({touch.x, touch.y}))
        return true;
    double factor = 1.0;
    const auto phase = touch.phase == TouchEvent::Pressed ? PinchTracker::Phase::Down
                       : touch.phase == TouchEvent::Moved ? PinchTracker::Phase::Move
                                                          : PinchTracker::Phase::Up;
    if (!pinch_.take(touch.id, phase, touch.x, touch.y, factor))
        return true;
    finger_.cancel(); // two fingers neither tap nor drag
    orbit_.zoom(factor);
    return false;
}

bool Map3D::processMouse(const irr::SEvent::SMouseInput& mouse) {
    const irr::core::vector2d<int> place(mouse.X, mouse.Y);
    int right = 0, down = 0;
    switch (mouse.Event) {
    case irr::EMIE_LMOUSE_PRESSED_DOWN:
        if (!rect_.isPointInside(place))
            return true;
        finger_.press(mouse.X, mouse.Y);
        return false;
    case irr::EMIE_MOUSE_MOVED:
        if (!mouse.isLeftPressed())
            finger_.cancel();
        if (finger_.move(mouse.X, mouse.Y, rect_.getHeight(), right, down))
            orbit_.drag(static_cast<double>(right) / rect_.getHeight(), static_cast<double>(down) / rect_.getHeight());
        return !finger_.isDown();
    case irr::EMIE_LMOUSE_LEFT_UP: {
        const bool mine = finger_.isDown();
        if (finger_.release() && rect_.isPointInside(place))
            tap(place);
        return !mine;
    }
    case irr::EMIE_MOUSE_WHEEL:
        if (!rect_.isPointInside(place))
            return true;
        orbit_.zoom(std::pow(zoomOfWheel, static_cast<double>(mouse.Wheel)));
        return false;
    default:
        return true;
    }
}

void Map3D::tap(irr::core::vector2d<int> place) {
    if (bars_.getQnhRect().isPointInside(place))
        context_->getPanelManager()->getMenu()->showAltimeterSettings();
    else if (buttons_.isVisible())
        buttons_.hide();
    else
        buttons_.show(rect_);
}

void Map3D::openOptions() {
    VisionChoice choice{settings_.switches, settings_.renderTrueMagHeading};
    if (!askVisionOptions(*context_, choice))
        return;
    settings_.switches = choice.switches;
    settings_.renderTrueMagHeading = choice.renderTrueMagHeading;
    bars_.setTrueMagneticHeading(choice.renderTrueMagHeading);
    applyOptimizedSettings(static_cast<OptimizedSettings>(preset_));
    storeVisionOptions(*context_, section_, choice);
}

} // namespace skyvane
