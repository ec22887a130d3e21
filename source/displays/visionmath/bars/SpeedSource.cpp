#include "displays/visionmath/bars/SpeedSource.h"

#include <cmath>

namespace skyvane {
namespace {

/// Below this a pitot tube tells nothing.
constexpr double leastAirSpeedKnots = 15.0;

} // namespace

double toSpeedUnit(double knots, bool metric) {
    return metric ? std::trunc(knots * kilometresPerHourPerKnot) : knots;
}

ShownSpeed chooseSpeed(const PfdReadings& readings) {
    const auto& air = readings.airSpeedKnots;
    const bool hasGround = isValueShown(readings.groundSpeedKnots.flag);
    const bool tooSlow = isValueShown(air.flag) && air.value < leastAirSpeedKnots;
    ShownSpeed shown;
    shown.isGroundSpeed = hasGround && (!readings.hasAirSpeed || tooSlow);
    const auto& source = shown.isGroundSpeed ? readings.groundSpeedKnots : air;
    shown.flag = source.flag;
    // Not cut here: the drums between two whole numbers show what is cut.
    shown.value = readings.metric ? source.value * kilometresPerHourPerKnot : source.value;
    if (shown.isGroundSpeed)
        shown.title = readings.metric ? L"GS km/h" : L"GroundSpeed";
    else
        shown.title = readings.metric ? L"IAS km/h" : L"KIAS";
    shown.failureName = shown.isGroundSpeed ? L"GS" : L"IAS";
    return shown;
}

} // namespace skyvane
