#include "displays/mapmath/RebuildTimer.h"

namespace skyvane {

double RebuildTimer::delayFor(double viewArea) {
    return viewArea > 100.0 ? 0.35 : viewArea >= 3.0 ? 0.25 : -1.0;
}

bool RebuildTimer::isDue(double now, const Situation& situation) const {
    if (situation.viewArea > situation.largestArea || situation.isPinching)
        return false;
    return (dirty_ || !situation.isCovering) && now > earliest_;
}

void RebuildTimer::begin(double now, double viewArea) {
    dirty_ = false;
    delayFrom(now, viewArea);
}

} // namespace skyvane
