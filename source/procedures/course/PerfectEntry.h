#pragma once

#include "procedures/course/CourseElement.h"

namespace skyvane {

/// The shortest path of the kind turn, straight, turn from a position on a course to a target on its course: the
/// shortest of the four Dubins paths with a straight part.
///
/// Altitudes in metres, courses in degrees true, the speed in knots, the rate in degrees per second. Turns have a
/// vertex every 9 degrees; the altitude varies evenly along the path. From more than 50 nautical miles away a line
/// first comes to 50 nautical miles from the target. Without any such path, a straight leg. All elements are
/// transitions. A target straight ahead is flown to on a straight leg where the exact path would need one more circle.
/// A pure function that never fails, for any thread.
CourseList calcPerfectEntry(ChartPosition pos, double alt, double course, ChartPosition target, double targetAlt,
                            double targetCourse, double speed, double rate);

} // namespace skyvane
