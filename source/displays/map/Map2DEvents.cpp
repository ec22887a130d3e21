// What fingers and buttons do to a map.
#include "core/Context.h"
#include "core/engine/TouchEvents.h"
#include "core/ini/IniFile.h"
#include "core/log/Logger.h"
#include "core/text/Numbers.h"
#include "core/time/Time.h"
#include "displays/PanelManager.h"
#include "displays/map/Map2D.h"
#include "displays/map/MapActions.h"
#include "displays/map/MapOptions.h"
#include "displays/map/MapParts.h"
#include "gui/windows/Help.h"

namespace skyvane {
namespace {

constexpr int saveTroubleMilliseconds = 10000;

} // namespace

bool Map2D::processEvent(irr::SEvent event) {
    if (event.EventType == irr::EET_GUI_EVENT)
        return processButton(event);
    if (isTouchEvent(event))
        return processTouch(event);
    if (event.EventType == irr::EET_MOUSE_INPUT_EVENT)
        return processMouse(event.MouseInput);
    if (event.EventType == irr::EET_KEY_INPUT_EVENT)
        return processKey(event.KeyInput);
    return true;
}

bool Map2D::processMouse(const irr::SEvent::SMouseInput& mouse) {
    const irr::core::vector2d<int> corner = parts_->getRect().UpperLeftCorner;
    const MapGestures::Point point(mouse.X - corner.X, mouse.Y - corner.Y);
    MapGestures& gestures = parts_->gestures;
    switch (mouse.Event) {
    case irr::EMIE_LMOUSE_PRESSED_DOWN:
        if (parts_->buttons.contains({mouse.X, mouse.Y}))
            return true;
        return apply(gestures.press(point, MilliSecs(), parts_->view.getZoom()));
    case irr::EMIE_MOUSE_MOVED:
        // A finger that was lifted over something else is told no release.
        return apply(mouse.isLeftPressed() ? gestures.move(point) : gestures.release(point, MilliSecs()));
    case irr::EMIE_LMOUSE_LEFT_UP:
        return apply(gestures.release(point, MilliSecs()));
    case irr::EMIE_MOUSE_WHEEL:
        if (!parts_->getRect().isPointInside({mouse.X, mouse.Y}))
            return true;
        zoomBySteps(static_cast<double>(mouse.Wheel));
        return false;
    default:
        return true;
    }
}

bool Map2D::processTouch(const irr::SEvent& event) {
    const TouchEvent touch = unpackTouchEvent(event);
    const irr::core::vector2d<int> corner = parts_->getRect().UpperLeftCorner;
    const MapGestures::Point point(touch.x - corner.X, touch.y - corner.Y);
    switch (touch.phase) {
    case TouchEvent::Pressed:
        return apply(parts_->gestures.fingerDown(touch.id, point, parts_->view.getZoom()));
    case TouchEvent::Moved:
        return apply(parts_->gestures.fingerMoved(touch.id, point));
    case TouchEvent::Left:
        break;
    }
    return apply(parts_->gestures.fingerUp(touch.id));
}

bool Map2D::processKey(const irr::SEvent::SKeyInput& key) {
    const bool isIn = key.Char == L'+' || key.Key == irr::KEY_PLUS || key.Key == irr::KEY_ADD;
    const bool isOut = key.Char == L'-' || key.Key == irr::KEY_MINUS || key.Key == irr::KEY_SUBTRACT;
    if (!isIn && !isOut)
        return true;
    if (key.PressedDown)
        zoomBySteps(isIn ? 1.0 : -1.0);
    return false;
}

void Map2D::zoomBySteps(double steps) {
    if (parts_->zoomTo(MapGestures::stepZoom(parts_->view.getZoom(), steps)))
        parts_->endZoom();
}

/// False when the gesture was the map's.
bool Map2D::apply(const MapGesture& gesture) {
    MapView& view = parts_->view;
    switch (gesture.kind) {
    case MapGesture::NotMine:
        return true;
    case MapGesture::Consumed:
        break;
    case MapGesture::LeaveFollowing:
        pressedView_ = view;
        view.leaveFollowing();
        break;
    case MapGesture::ToggleOrientation:
        view.toggleOrientation();
        parts_->markDirty();
        break;
    case MapGesture::Zoom:
        parts_->zoomTo(gesture.zoom);
        break;
    case MapGesture::ZoomEnd:
        parts_->endZoom();
        break;
    case MapGesture::Drag:
        view.setMode(MapMode::Dragging);
        view.setPan(gesture.point);
        break;
    case MapGesture::DragEnd:
        endDrag();
        break;
    case MapGesture::Tap:
        // What was touched, as the map lay and turned then.
        view.centreOn(pressedView_.toChart(gesture.point));
        break;
    case MapGesture::PinchStart:
        if (isFollowing(pressedView_.getMode()) && !isFollowing(view.getMode()))
            view.follow();
        else if (!isFollowing(view.getMode()))
            endDrag();
        pressedView_ = view;
        break;
    }
    return false;
}

void Map2D::endDrag() {
    parts_->view.commitPan();
    parts_->view.setMode(MapMode::Marker);
}

bool Map2D::processButton(const irr::SEvent& event) {
    switch (parts_->buttons.findClicked(event)) {
    case MapButtons::ZoomIn:
        zoomBySteps(1.0);
        return false;
    case MapButtons::ZoomOut:
        zoomBySteps(-1.0);
        return false;
    case MapButtons::Info:
        showMapInfo(*context_, parts_->selection.getIndex(), parts_->selection.getPosition());
        return false;
    case MapButtons::Create:
        createProcedure(*context_, parts_->selection.getIndex(), parts_->selection.getPosition(), getPosition());
        return false;
    case MapButtons::Center:
        parts_->view.follow();
        parts_->selection.forget();
        return false;
    case MapButtons::Next:
        parts_->selection.next();
        return false;
    case MapButtons::Options:
        changeOptions();
        return false;
    case MapButtons::Help:
        showHelp(context_, "Map2D.hti");
        return false;
    case MapButtons::None:
        break;
    }
    return true;
}

/// The document is the one that the panel was made from: pages are arranged only after everything was unloaded.
void Map2D::changeOptions() {
    if (!askMapOptions(*context_, settings_))
        return;
    applyOptimizedSettings(preset_);
    const std::string path = context_->getConfigPath();
    IniFile config(path);
    if (!section_.empty() && config.isSectionAvailable(section_))
        settings_.writeOptions(config, section_);
    if (config.Save(path))
        return;
    logText("The options of a map could not be saved to " + path + "\n");
    context_->getPanelManager()->setMessage(this, "The options could not be saved and end with this flight.",
                                            MESSAGE_YELLOW, saveTroubleMilliseconds);
}

} // namespace skyvane
