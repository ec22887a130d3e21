#include "sensors/simulators/XPlanePositionStack.h"

#include "chart/geodesy/GreatCircle.h"

namespace skyvane {

bool XPlanePositionStack::isComplete(const ChartPosition& pair) {
    return pair.longitude != NotSet && pair.latitude != NotSet;
}

void XPlanePositionStack::OnNewLongitude(double longitude) {
    set(&ChartPosition::longitude, longitude);
}

void XPlanePositionStack::OnNewLatitude(double latitude) {
    set(&ChartPosition::latitude, latitude);
}

void XPlanePositionStack::set(double ChartPosition::*coordinate, double value) {
    if (pairs_[current_].*coordinate == value)
        return;
    if (isComplete(pairs_[current_])) {
        current_ = 1 - current_;
        pairs_[current_] = {NotSet, NotSet};
    }
    pairs_[current_].*coordinate = value;
}

bool XPlanePositionStack::calculateHeading(double& degrees) const {
    if (!isComplete(pairs_[0]) || !isComplete(pairs_[1]))
        return false;
    degrees = calcBearing2(pairs_[1 - current_], pairs_[current_]);
    return true;
}

} // namespace skyvane
