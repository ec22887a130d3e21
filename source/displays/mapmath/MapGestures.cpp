#include "displays/mapmath/MapGestures.h"

#include <algorithm>
#include <cmath>

namespace skyvane {
namespace {

constexpr double zoomStep = 1.5;
constexpr double zoomBarSpeed = 2.0149030205422647;
constexpr double zoomBarThreshold = 0.01;
constexpr double pinchSpeed = 0.5;
/// Fingers nearer to each other than that say nothing of a distance.
constexpr double smallestPinch = 8.0;
constexpr double tapReach = 0.015; ///< Of the panel's height.
constexpr unsigned tapMilliseconds = 1000;

MapGesture gestureOf(MapGesture::Kind kind, const MapGestures::Point& point = {}) {
    return {kind, point, 0.0};
}

MapGesture zoomTo(double zoom) {
    return {MapGesture::Zoom, {}, zoom};
}

} // namespace

double MapGestures::stepZoom(double zoom, double steps) {
    return zoom * std::pow(zoomStep, std::clamp(steps, -8.0, 8.0));
}

MapGesture MapGestures::press(const Point& point, unsigned milliseconds, double zoom) {
    const Rect panel(Point(0.0, 0.0), places_.size);
    if (!panel.isPointInside(point))
        return gestureOf(MapGesture::NotMine);
    if (pinching_)
        return gestureOf(MapGesture::Consumed);
    pressed_ = point;
    pressedMilliseconds_ = milliseconds;
    if (places_.compass.getArea() > 0.0 && places_.compass.isPointInside(point)) {
        state_ = State::Compass;
        return gestureOf(MapGesture::Consumed);
    }
    if (places_.zoomBar.getArea() > 0.0 && places_.zoomBar.isPointInside(point)) {
        state_ = State::ZoomBar;
        startZoom_ = lastZoom_ = zoom;
        return gestureOf(MapGesture::Consumed);
    }
    state_ = State::Map;
    return gestureOf(MapGesture::LeaveFollowing, point);
}

MapGesture MapGestures::zoomBarMoved(const Point& point) {
    const double share = (point.Y - pressed_.Y) / std::max(places_.size.Y, 1.0);
    const double zoom = startZoom_ * std::exp(-zoomBarSpeed * share);
    if (std::fabs(zoom / lastZoom_ - 1.0) <= zoomBarThreshold)
        return gestureOf(MapGesture::Consumed);
    lastZoom_ = zoom;
    return zoomTo(zoom);
}

MapGesture MapGestures::move(const Point& point) {
    switch (state_) {
    case State::Idle:
        return gestureOf(MapGesture::NotMine);
    case State::Compass:
        return gestureOf(MapGesture::Consumed);
    case State::ZoomBar:
        return zoomBarMoved(point);
    case State::Map:
        break;
    }
    return point == pressed_ ? gestureOf(MapGesture::Consumed) : gestureOf(MapGesture::Drag, point - pressed_);
}

MapGesture MapGestures::release(const Point& point, unsigned milliseconds) {
    const State state = state_;
    state_ = State::Idle;
    switch (state) {
    case State::Idle:
        return gestureOf(MapGesture::NotMine);
    case State::Compass:
        return gestureOf(places_.compass.isPointInside(point) ? MapGesture::ToggleOrientation : MapGesture::Consumed);
    case State::ZoomBar:
        return gestureOf(MapGesture::ZoomEnd);
    case State::Map:
        break;
    }
    const bool isNear = point.getDistanceFrom(pressed_) <= tapReach * places_.size.Y;
    if (isNear && milliseconds - pressedMilliseconds_ <= tapMilliseconds)
        return gestureOf(MapGesture::Tap, pressed_);
    return gestureOf(MapGesture::DragEnd, point - pressed_);
}

double MapGestures::fingerDistance() const {
    if (fingers_.size() < 2)
        return smallestPinch;
    const Point& first = fingers_.begin()->second;
    return std::max(smallestPinch, first.getDistanceFrom(std::next(fingers_.begin())->second));
}

MapGesture MapGestures::fingerDown(uint32_t id, const Point& point, double zoom) {
    const Rect panel(Point(0.0, 0.0), places_.size);
    if (!panel.isPointInside(point) || (fingers_.size() >= 2 && fingers_.count(id) == 0))
        return gestureOf(MapGesture::NotMine);
    fingers_[id] = point;
    if (fingers_.size() < 2 || pinching_)
        return gestureOf(MapGesture::NotMine);
    pinching_ = true;
    state_ = State::Idle;
    pinchDistance_ = fingerDistance();
    startZoom_ = zoom;
    return gestureOf(MapGesture::PinchStart);
}

MapGesture MapGestures::fingerMoved(uint32_t id, const Point& point) {
    const auto finger = fingers_.find(id);
    if (finger == fingers_.end())
        return gestureOf(MapGesture::NotMine);
    finger->second = point;
    if (!pinching_)
        return gestureOf(MapGesture::NotMine);
    const double share = (fingerDistance() - pinchDistance_) * pinchSpeed / pinchDistance_;
    return zoomTo(startZoom_ * (share + 1.0));
}

MapGesture MapGestures::fingerUp(uint32_t id) {
    if (fingers_.erase(id) == 0 || !pinching_)
        return gestureOf(MapGesture::NotMine);
    pinching_ = false;
    return gestureOf(MapGesture::ZoomEnd);
}

void MapGestures::reset() {
    state_ = State::Idle;
    fingers_.clear();
    pinching_ = false;
}

} // namespace skyvane
