#pragma once

#include "procedures/course/CourseElement.h"

namespace skyvane {

// Straight paths along the great circle. Pure functions that never fail, for any thread. Altitudes in metres.

/// Puts the midpoint of the great circle between each two neighbours, as often as told; at most 12 times.
CourseList subdivideCourseList(CourseList list, int levels);

/// A line in 2 to the power of levels + 1 parts, at least two.
CourseList calcLine(ChartPosition from, ChartPosition to, double alt1, double alt2, int levels, bool transition);

/// A line in as many parts as its length needs: none spans more than about a quarter of a degree of the earth.
CourseList calcLine(ChartPosition from, ChartPosition to, double alt1, double alt2, bool transition);

/// A line of a true course and a length, both in the local frame of its start.
CourseList calcLine(ChartPosition from, double course, double lengthNM, double alt1, double alt2, int levels,
                    bool transition);

/// How often a line that spans an angle of the earth, in degrees, is halved: log2 of it plus 2, rounded, 0 at least.
int lineLevels(double spanDegrees);

} // namespace skyvane
