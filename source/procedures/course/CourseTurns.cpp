#include "procedures/course/CourseTurns.h"

#include "chart/geodesy/Angles.h"
#include "chart/geodesy/EarthConstants.h"
#include "chart/geodesy/GreatCircle.h"
#include "chart/geodesy/LocalFrame.h"
#include "procedures/course/CourseCleansing.h"
#include "procedures/course/CourseLines.h"
#include "procedures/course/PlanarTurn.h"

#include <algorithm>
#include <cmath>

namespace skyvane {

namespace {

using Place = irr::core::vector3d<float>;
using PrecisePlace = irr::core::vector3d<double>;

constexpr double SmallestStepDegrees = 0.1;
constexpr double LeadInSeconds = 5.0;
constexpr double LeastAltitudeChange = 5.0;

bool turnsRight(double from, double to, bool preferLeft) {
    if (std::fabs(std::fabs(to - from) - 180.0) <= 1.0)
        return !preferLeft;
    return (to > from && to - from < 180.0) || (from > to && from - to >= 180.0);
}

bool isRightOf(const ChartPosition& target, const ChartPosition& position, double course) {
    return Angle180(calcBearing2(position, target) - course) > 0.0;
}

struct DirectTurn {
    CourseList elements;
    bool found = false; ///< whether the nose came onto the target
};

DirectTurn turnTowards(const CourseElement& start, const ChartPosition& target, double radius, double step) {
    const bool right = isRightOf(target, start.position, start.course);
    const double signedStep = right ? step : -step;
    const PrecisePlace centre = besideCourse(PrecisePlace(0.0, 0.0, 0.0), start.course, right ? radius : -radius);
    DirectTurn turn;
    PrecisePlace place;
    CourseElement element = start;
    for (double turned = step; turned <= 360.0; turned += step) {
        place = turnedAround(centre, place, signedStep);
        element.position = Vector3df642ChartPosition(start.position, place);
        element.course = Angle0to360(element.course + signedStep);
        if (isRightOf(target, element.position, element.course) != right) {
            turn.found = true;
            break;
        }
        turn.elements.push_back(element);
    }
    return turn;
}

} // namespace

double checkedStep(double stepDegrees) {
    const double step = std::fabs(stepDegrees);
    return step >= SmallestStepDegrees ? step : SmallestStepDegrees;
}

CourseList calcTurn(ChartPosition pos, double fromCourse, double toCourse, double rate, double speed, float alt1,
                    float alt2, bool transition, double stepDegrees, bool preferLeft) {
    const double degreesPerSecond = std::fabs(rate) > 1.0 ? std::fabs(rate) : 1.0;
    const double radius = std::fabs(speed) * MetresPerSecondPerKnot / (degreesPerSecond / DegreesPerRadian);
    const double from = Angle0to360(fromCourse);
    const double to = Angle0to360(toCourse);
    const bool right = turnsRight(from, to, preferLeft);
    const double total = right ? Angle0to360(to - from) : Angle0to360(from - to);
    const double sign = right ? 1.0 : -1.0;

    const Place start(0.0f, alt1, 0.0f);
    const Place centre = besideCourse(start, from, sign * radius);
    const double step = checkedStep(stepDegrees);
    CourseList list{{pos, alt1, from, transition}};
    Place place = start;
    for (double turned = step; turned < total; turned += step) {
        place = turnedAround(centre, place, sign * step);
        list.push_back({Vector3df2ChartPosition(pos, place), alt1 + turned / total * (alt2 - alt1),
                        Angle0to360(from + sign * turned), transition});
    }
    const Place end = turnedAround(centre, start, sign * total);
    list.push_back({Vector3df2ChartPosition(pos, end), alt2, to, transition});
    return list;
}

CourseList calcDirectWithStartingTurn(const ChartPosition& pos, double course, const ChartPosition& target,
                                      double stepDegrees, double speed, double rate, double alt1, double alt2,
                                      bool transition) {
    const double radius = std::fabs(speed) * MetresPerSecondPerKnot / (std::fabs(rate) / DegreesPerRadian);
    if (!(calcDistance2(pos, target) >= 2.0 * radius))
        return calcLine(pos, target, alt1, alt2, transition);

    const double leadInNM = std::min(std::fabs(speed) * LeadInSeconds / 3600.0, radius / MetresPerNauticalMile);
    const double spanDegrees = leadInNM * MetresPerNauticalMile / MetresPerDegree;
    CourseList list = calcLine(pos, course, leadInNM, alt1, alt1, lineLevels(spanDegrees), transition);
    CourseElement turnStart = list.back();
    turnStart.course = course;
    DirectTurn turn = turnTowards(turnStart, target, radius, checkedStep(stepDegrees));
    if (turn.found)
        list.splice(list.end(), turn.elements);
    list.splice(list.end(), calcLine(list.back().position, target, alt1, alt1, transition));
    applyAltitudeChange(list, alt2 - alt1, LeastAltitudeChange);
    return list;
}

} // namespace skyvane
