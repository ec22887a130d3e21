#include "displays/informationmath/SideRange.h"

#include <algorithm>
#include <cmath>
#include <iterator>

namespace skyvane {
namespace {

/// Of the range, above the highest point of a course that would reach out of it.
constexpr double courseMargin = 0.15;
/// Fingers closer together than that tell no scale.
constexpr double leastFingerPixels = 1.0;

} // namespace

void SideRange::update(const Heights& heights) {
    if (following_)
        follow(heights);
    else
        limit(heights.lowestGround);
}

void SideRange::follow(const Heights& heights) {
    const double ground = heights.highestGround - heights.lowestGround;
    double wanted = heights.highestGround + 0.5 * ground;
    if (std::isfinite(heights.own))
        wanted = std::max(wanted, heights.own + OwnMarginMetres);
    // A course that climbs out of the picture tells nothing.
    if (heights.highestCourse > wanted)
        wanted = heights.highestCourse + courseMargin * (heights.highestCourse - heights.lowestGround);
    wanted = std::max(wanted, heights.lowestGround + LeastMetres);
    top_ = std::min(std::max(top_, wanted), HighestMetres);
}

void SideRange::limit(double lowestGround) {
    if (top_ > HighestMetres)
        top_ /= Step;
    const double least = lowestGround + LeastMetres;
    if (top_ < least)
        top_ *= Step;
    if (!(top_ >= least)) // below sea level no factor helps
        top_ = least;
}

void SideRange::choose(double topMetres) {
    if (!std::isfinite(topMetres))
        return;
    following_ = false;
    top_ = topMetres;
}

void SideRange::center() {
    following_ = true;
    top_ = 0.0;
}

SidePinch::Finger* SidePinch::find(unsigned id) {
    Finger* found = std::find_if(std::begin(fingers_), std::end(fingers_),
                                 [id](const Finger& finger) { return finger.isDown && finger.id == id; });
    return found == std::end(fingers_) ? nullptr : found;
}

double SidePinch::distance() const {
    return std::hypot(fingers_[0].x - fingers_[1].x, fingers_[0].y - fingers_[1].y);
}

bool SidePinch::down(unsigned id, double x, double y, double top) {
    Finger* finger = find(id);
    if (!finger)
        finger = !fingers_[0].isDown ? &fingers_[0] : !fingers_[1].isDown ? &fingers_[1] : nullptr;
    if (!finger)
        return false;
    *finger = {true, id, x, y};
    startDistance_ = distance();
    startTop_ = top_ = top;
    return false;
}

bool SidePinch::moved(unsigned id, double x, double y) {
    Finger* finger = find(id);
    if (!finger)
        return false;
    finger->x = x;
    finger->y = y;
    const double now = distance();
    if (!isActive() || startDistance_ < leastFingerPixels || now < leastFingerPixels)
        return false;
    top_ = startTop_ / ((now - startDistance_) / startDistance_ + 1.0);
    return true;
}

void SidePinch::up(unsigned id) {
    if (Finger* finger = find(id))
        finger->isDown = false;
}

} // namespace skyvane
