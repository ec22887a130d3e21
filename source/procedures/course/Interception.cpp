#include "procedures/course/Interception.h"

#include "chart/geodesy/Angles.h"
#include "chart/geodesy/EarthConstants.h"
#include "chart/geodesy/GreatCircle.h"
#include "chart/geodesy/LocalFrame.h"
#include "procedures/course/CourseCleansing.h"
#include "procedures/course/CourseLines.h"
#include "procedures/course/CourseTurns.h"
#include "procedures/course/PerfectEntry.h"

#include <algorithm>
#include <cmath>

namespace skyvane {

namespace {

using Place = irr::core::vector3d<double>;

constexpr double FarMetres = 64820.0;
constexpr double LeastAltitudeChange = 5.0;
constexpr double OnLineDegrees = 1.0;
constexpr double SamePlaceMetres = 1.0;

Place unit(double courseDegrees) {
    return {std::sin(courseDegrees / DegreesPerRadian), 0.0, std::cos(courseDegrees / DegreesPerRadian)};
}

double angleBetween(const Place& a, const Place& b) {
    return std::acos(std::max(-1.0, std::min(1.0, a.X * b.X + a.Z * b.Z)));
}

/// A turn towards the fix and a line to 35 nautical miles from it. The line ends where the interception starts.
CourseList approachFromFar(const ChartPosition& pos, double course, double alt, const ChartPosition& fix, double rate,
                           double speed, double stepDegrees) {
    const float height = static_cast<float>(alt);
    CourseList list =
        calcTurn(pos, course, calcBearing2(pos, fix), rate, speed, height, height, true, stepDegrees, true);
    const ChartPosition turned = list.back().position;
    const ChartPosition near = Vector3df642ChartPosition(fix, unit(calcBearing2(fix, turned)) * FarMetres);
    list.splice(list.end(), calcLine(turned, near, alt, alt, false));
    return list;
}

/// Of the two headings that meet a line at an angle, the one whose direction lies closest to the start's.
double meetingHeading(const Place& fixToStart, double lineCourse, double offset) {
    const double length = std::hypot(fixToStart.X, fixToStart.Z);
    if (!(length > 0.0))
        return lineCourse + offset;
    const Place direction = fixToStart / length;
    return angleBetween(unit(lineCourse - offset), direction) < angleBetween(unit(lineCourse + offset), direction)
               ? lineCourse - offset
               : lineCourse + offset;
}

/// How far a place has to move along one direction to lie on a line through another place; nothing for parallel ones.
Place shiftOnto(const Place& place, const Place& along, const Place& onLine, const Place& lineDirection) {
    const double across = along.X * lineDirection.Z - along.Z * lineDirection.X;
    if (!(std::fabs(across) > 1e-9))
        return {};
    const Place gap = onLine - place;
    return along * ((gap.X * lineDirection.Z - gap.Z * lineDirection.X) / across);
}

/// Whether a path still leads from its beginning onto the line: the cleansing takes out what can't be flown, and that
/// may be either end.
bool isWhole(const CourseList& list, const ChartPosition& start, double flownCourse) {
    return list.size() >= 2 && calcDistance2(list.front().position, start) < SamePlaceMetres &&
           std::fabs(Angle180(list.back().course - flownCourse)) <= OnLineDegrees;
}

/// The way to the line behind what leads to its start, cleansed; `lineCourse` is against the flight.
struct LineIntercept {
    ChartPosition fix;
    double lineCourse, alt, rate, speed, offset, stepDegrees;
    bool transition;

    CourseList fly(CourseList list, const ChartPosition& pos, double course) const;
};

CourseList LineIntercept::fly(CourseList list, const ChartPosition& pos, double course) const {
    const double heading = meetingHeading(-ChartPosition2Vector3df64(pos, fix, 0.0), lineCourse, offset);

    const float height = static_cast<float>(alt);
    const CourseList ontoLine =
        calcTurn(fix, lineCourse, heading, rate, speed, height, height, transition, stepDegrees, true);
    list.splice(list.end(),
                calcTurn(pos, course, heading + 180.0, rate, speed, height, height, transition, stepDegrees, true));

    const Place meets = ChartPosition2Vector3df64(pos, ontoLine.back().position, 0.0);
    const Place leaves = ChartPosition2Vector3df64(pos, list.back().position, 0.0);
    const Place shift = shiftOnto(meets, unit(lineCourse), leaves, unit(heading));
    for (auto element = ontoLine.rbegin(); element != ontoLine.rend(); ++element) {
        CourseElement moved = *element;
        moved.position = Vector3df642ChartPosition(pos, ChartPosition2Vector3df64(pos, element->position, 0.0) + shift);
        moved.course += 180.0;
        list.push_back(moved);
    }
    courseListCleansing(list, 1.5 * stepDegrees);
    return list;
}

} // namespace

CourseList calculateInterception(ChartPosition pos, double course, double alt, ChartPosition fix, double radial,
                                 double endAlt, double rate, double speed, bool towards, double offset,
                                 double stepDegrees, bool transition) {
    const ChartPosition start = pos;
    CourseList before;
    if (calcDistance2(pos, fix) > FarMetres) {
        before = approachFromFar(pos, course, alt, fix, rate, speed, stepDegrees);
        pos = before.back().position;
    }
    const double lineCourse = Angle0to360(towards ? radial : radial + 180.0), flownCourse = lineCourse + 180.0;
    const LineIntercept intercept{fix, lineCourse, alt, rate, speed, offset, stepDegrees, transition};
    CourseList list = intercept.fly(before, pos, course);
    if (!before.empty() && !isWhole(list, start, flownCourse))
        list = intercept.fly(before, pos, before.back().course); // on which it arrives
    if (!isWhole(list, start, flownCourse))
        return calcPerfectEntry(start, alt, course, fix, endAlt, flownCourse, speed,
                                rate); // too close for the turns to fit
    applyAltitudeChange(list, endAlt - alt, LeastAltitudeChange);
    return list;
}

} // namespace skyvane
