#include "displays/visionmath/OrbitControl.h"

#include "chart/geodesy/Angles.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <utility>

namespace skyvane {
namespace {

constexpr double nearestChaseMetres = 45.0;
constexpr double degreesPerHeight = 120.0;

} // namespace

void OrbitControl::drag(double right, double down) {
    if (isFirstPerson() || !std::isfinite(right) || !std::isfinite(down))
        return;
    yawDegrees_ = Angle180(yawDegrees_ + right * degreesPerHeight);
    heightDegrees_ = std::clamp(heightDegrees_ + down * degreesPerHeight, lowestDegrees, highestDegrees);
}

void OrbitControl::zoom(double factor) {
    if (!(factor > 0.0) || !std::isfinite(factor))
        return;
    if (isFirstPerson())
        distanceMetres_ = factor < 1.0 ? nearestChaseMetres : 0.0;
    else
        distanceMetres_ = std::min(distanceMetres_ / factor, farthestMetres);
    if (isFirstPerson())
        distanceMetres_ = 0.0;
}

double OrbitControl::getChaseMetres() const {
    return std::max(distanceMetres_, nearestChaseMetres);
}

void TapOrDrag::press(int x, int y) {
    down_ = true;
    dragging_ = false;
    startX_ = lastX_ = x;
    startY_ = lastY_ = y;
}

bool TapOrDrag::move(int x, int y, int panelHeight, int& right, int& down) {
    if (!down_)
        return false;
    dragging_ = dragging_ || std::hypot(x - startX_, y - startY_) > tapShare * panelHeight;
    if (!dragging_)
        return false;
    right = x - std::exchange(lastX_, x);
    down = y - std::exchange(lastY_, y);
    return true;
}

bool TapOrDrag::release() {
    return std::exchange(down_, false) && !dragging_;
}

double PinchTracker::getDistance() const {
    return std::hypot(fingers_[0].x - fingers_[1].x, fingers_[0].y - fingers_[1].y);
}

bool PinchTracker::take(unsigned id, Phase phase, int x, int y, double& factor) {
    constexpr double nearest = 10.0; // pixels: closer, the quotient says nothing
    Finger* finger = std::find_if(std::begin(fingers_), std::end(fingers_),
                                  [id](const Finger& each) { return each.down && each.id == id; });
    if (finger == std::end(fingers_) && phase == Phase::Down)
        finger = std::find_if(std::begin(fingers_), std::end(fingers_), [](const Finger& each) { return !each.down; });
    if (finger == std::end(fingers_))
        return false;
    *finger = {phase != Phase::Up, id, x, y};
    if (!fingers_[0].down || !fingers_[1].down)
        return false;
    const double distance = std::max(getDistance(), nearest);
    const double before = std::exchange(lastDistance_, distance);
    if (phase != Phase::Move)
        return false;
    factor = distance / before;
    return true;
}

} // namespace skyvane
