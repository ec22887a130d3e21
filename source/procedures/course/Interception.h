#pragma once

#include "procedures/course/CourseElement.h"

namespace skyvane {

/// The way onto the line through a fix on a radial: a turn onto a heading that meets the line at an angle, straight on,
/// and a turn onto the line, ending on it.
///
/// Courses, the radial, the offset (the angle at which the line is met, 25 at least) and the step of turns in degrees,
/// altitudes in metres, the rate in degrees per second, the speed in knots. The radial is the direction in which the
/// line leaves the fix: `towards` flies inbound on it, on the course radial + 180, otherwise outbound, on the radial.
/// From more than 35 nautical miles away it first flies to that distance of the fix: on the
/// course of the start at the interception's beginning, or on the one on which it arrives where that makes no path. Too
/// close for the turns to fit, it flies the shortest way to the fix on the course of the line. A pure function that
/// never fails, for any thread.
CourseList calculateInterception(ChartPosition pos, double course, double alt, ChartPosition fix, double radial,
                                 double endAlt, double rate, double speed, bool towards, double offset,
                                 double stepDegrees, bool transition);

} // namespace skyvane
