#pragma once

#include "procedures/course/CourseElement.h"

namespace skyvane {

// What is done to whole course lists. Pure functions that never fail, for any thread.

/// Spreads a change of altitude, in metres, along the list by distance. Changes up to the minimum, and lists shorter
/// than a metre, stay as they are.
void applyAltitudeChange(CourseList& list, double change, double minimum);

/// Removes, in pairs, neighbours whose courses differ from each other or from the bearing between them by more than
/// an angle in degrees.
void courseListCleansing(CourseList& list, double maxAngle);

/// Removes elements whose removal makes the path straighter by more than an angle in degrees: zigzags. A long leg that
/// goes is replaced by a line. An element of the given list is removed once at most, so the walk always ends.
void courseListCurveCleansing(CourseList& list, double minGain);

/// The list flown the other way.
CourseList reverseCourseList(const CourseList& list);

/// How far a point is, in metres, counting the arc that a turn towards it takes at 3 degrees per second: the speed is
/// in metres per second, the course in degrees true, the weight scales the arc.
double calcDistanceMetric(ChartPosition a, ChartPosition b, double course, double speed, double weight);

} // namespace skyvane
