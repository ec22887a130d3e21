#include "displays/visionmath/PitchLadder.h"

#include "chart/geodesy/EarthConstants.h"

#include <cmath>

namespace skyvane {
namespace {

using Vector = ViewPose::Vector;

/// What an angle along the vertical circle is as a pitch: past the zenith it falls again.
int foldPitch(int degrees) {
    if (degrees > 90)
        return 180 - degrees;
    return degrees < -90 ? -180 - degrees : degrees;
}

} // namespace

PitchLadder::PitchLadder(const ViewPose& pose, const Lens& lens, double reachPixels) {
    // The vertical circle that the eye looks along; over the top it goes on as it began.
    const bool inverted = pose.up.Y < 0.0;
    Vector level(pose.forward.X, 0.0, pose.forward.Z);
    if (level.getLength() < 1e-3) // straight up or down, where the top of the head points the way
        level = Vector(pose.up.X, 0.0, pose.up.Z) * (pose.forward.Y > 0.0 ? -1.0 : 1.0);
    else if (inverted)
        level = -level;
    ahead_ = level.normalize();
    right_ = Vector(ahead_.Z, 0.0, -ahead_.X);
    const double along = std::atan2(pose.forward.Y, pose.forward.dotProduct(ahead_)) * DegreesPerRadian;
    const int middle = static_cast<int>(std::lround(along / stepDegrees)) * stepDegrees;
    constexpr int widest = 60;
    for (int degrees = middle - widest; degrees <= middle + widest; degrees += stepDegrees)
        add(pose, lens, degrees, reachPixels);
}

void PitchLadder::add(const ViewPose& pose, const Lens& lens, int degrees, double reachPixels) {
    const double angle = degrees / DegreesPerRadian;
    const Vector direction = ahead_ * std::cos(angle) + Vector(0.0, std::sin(angle), 0.0);
    const auto centre = lens.project(pose, direction);
    if (!centre || centre->getDistanceFrom(lens.getCentre()) > reachPixels || count_ == rungs_.size())
        return;
    // To the right of who flies there upright: past the zenith that is the other way.
    const auto aside = lens.project(pose, direction + right_ * (std::cos(angle) < 0.0 ? -0.01 : 0.01));
    if (!aside)
        return;
    Lens::Point along = *aside - *centre;
    int turned = degrees;
    while (turned > 180)
        turned -= 360;
    while (turned < -180)
        turned += 360;
    const int pitch = foldPitch(turned);
    rungs_[count_++] = {*centre, along.normalize(), pitch, pitch % 10 == 0};
}

} // namespace skyvane
