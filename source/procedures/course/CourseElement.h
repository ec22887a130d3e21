#pragma once

#include "chart/geodesy/ChartPosition.h"

#include <list>

namespace skyvane {

/// A point of a path to fly.
struct CourseElement {
    ChartPosition position;
    double altitude = 0.0; ///< metres
    double course = 0.0;   ///< degrees true of the path at this point, up to 540 where a line ends
    /// Only leads to the procedure proper; displays draw such parts in a second style.
    bool transition = false;
};

/// A path: its elements follow each other, and the altitude between two of them varies linearly.
using CourseList = std::list<CourseElement>;

} // namespace skyvane
