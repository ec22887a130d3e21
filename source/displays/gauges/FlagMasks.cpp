#include "displays/gauges/FlagMasks.h"

#include "displays/gauges/DialFrame.h"

#include <algorithm>
#include <cmath>

namespace skyvane {

namespace {

constexpr double armReach = 0.30; // of a half diagonal's axis: ends inside the face
constexpr double armHalfWidth = 0.028;
constexpr double ringInner = dialFaceFraction / 2.0 - 0.012;
constexpr double ringOuter = 0.478;

double distanceToSegment(double x, double y, double reachX, double reachY) {
    const double along = std::clamp((x * reachX + y * reachY) / (reachX * reachX + reachY * reachY), -1.0, 1.0);
    return std::hypot(x - along * reachX, y - along * reachY);
}

double coverage(double insideBy, double softness) {
    return std::clamp(insideBy / softness + 0.5, 0.0, 1.0);
}

} // namespace

double crossCoverage(double x, double y, double softness) {
    const double fall = distanceToSegment(x - 0.5, y - 0.5, armReach, armReach);
    const double rise = distanceToSegment(x - 0.5, y - 0.5, armReach, -armReach);
    return coverage(armHalfWidth - std::min(fall, rise), softness);
}

double ringCoverage(double x, double y, double softness) {
    const double radius = std::hypot(x - 0.5, y - 0.5);
    return coverage(std::min(radius - ringInner, ringOuter - radius), softness);
}

} // namespace skyvane
