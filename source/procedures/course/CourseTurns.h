#pragma once

#include "procedures/course/CourseElement.h"

namespace skyvane {

// Turns at a constant rate. Pure functions that never fail, for any thread. Courses and steps in degrees, rates in
// degrees per second, speeds in knots, altitudes in metres. A step below a tenth of a degree counts as one.

/// A turn that starts at a position on one course and ends on another, the shorter way; a reversal (within a degree)
/// goes left or right as told. At most one degree per second counts as one. A speed of zero turns on the spot.
CourseList calcTurn(ChartPosition pos, double fromCourse, double toCourse, double rate, double speed, float alt1,
                    float alt2, bool transition, double stepDegrees, bool preferLeft);

/// Straight on for a moment, a turn towards the target, a line to it: the way after "direct to". Closer than two turn
/// radii, or where no turn brings the nose onto the target, a line alone. The altitude changes along the whole of it.
CourseList calcDirectWithStartingTurn(const ChartPosition& pos, double course, const ChartPosition& target,
                                      double stepDegrees, double speed, double rate, double alt1, double alt2,
                                      bool transition);

/// The smallest step of a turn that is believed.
double checkedStep(double stepDegrees);

} // namespace skyvane
