#pragma once

#include "displays/visionmath/PfdReadings.h"

namespace skyvane {

/// The speed that the speed bar shows, in its unit, and whose it is.
struct ShownSpeed {
    double value = 0.0; ///< Knots or km/h.
    DialFlag flag = DialFlag::Failed;
    bool isGroundSpeed = false;
    const wchar_t* title = L"";
    const wchar_t* failureName = L"";
};

/// Air speed; ground speed where there is no air speed, or while the air speed is too low to be measured. An air speed
/// that failed is not replaced: the pilot is told.
ShownSpeed chooseSpeed(const PfdReadings& readings);

/// A speed of an aircraft's marks in the unit of the bar: knots as they are, km/h cut to a whole number.
double toSpeedUnit(double knots, bool metric);

} // namespace skyvane
