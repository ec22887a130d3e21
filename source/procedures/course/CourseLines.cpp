#include "procedures/course/CourseLines.h"

#include "chart/geodesy/EarthConstants.h"
#include "chart/geodesy/GreatCircle.h"
#include "chart/geodesy/LocalFrame.h"

#include <algorithm>
#include <cmath>
#include <iterator>

namespace skyvane {

namespace {

constexpr int MostLevels = 12;
constexpr int LevelsOfNoAngle = 9;

irr::core::vector3d<double> direction(const ChartPosition& position) {
    return calcVectorFromChartPositionf64(position.longitude, position.latitude);
}

CourseElement midpoint(const CourseElement& a, const CourseElement& b) {
    const irr::core::vector3d<double> end = direction(b.position);
    const irr::core::vector3d<double> sum = direction(a.position) + end;
    CourseElement middle;
    calcChartPositionFromVector(sum, middle.position.longitude, middle.position.latitude);
    middle.altitude = (a.altitude + b.altitude) / 2.0;
    middle.course = calcBearing(sum, end);
    middle.transition = b.transition;
    return middle;
}

int levelsBetween(const ChartPosition& from, const ChartPosition& to) {
    const double cosine = direction(from).dotProduct(direction(to));
    if (cosine < -1.0)
        return LevelsOfNoAngle;
    return lineLevels(std::acos(std::min(cosine, 1.0)) * DegreesPerRadian);
}

} // namespace

int lineLevels(double spanDegrees) {
    if (!(spanDegrees > 0.0))
        return 0;
    return std::max(0, static_cast<int>(std::floor(std::log2(spanDegrees) + 2.0 + 0.5)));
}

CourseList subdivideCourseList(CourseList list, int levels) {
    for (int pass = 0; pass < std::min(levels, MostLevels); ++pass) {
        if (list.empty())
            break;
        for (auto a = list.begin(), b = std::next(a); b != list.end(); a = b++)
            list.insert(b, midpoint(*a, *b));
    }
    return list;
}

CourseList calcLine(ChartPosition from, ChartPosition to, double alt1, double alt2, int levels, bool transition) {
    const CourseElement start{from, alt1, calcBearing2(from, to), transition};
    const CourseElement end{to, alt2, calcBearing2(to, from) + 180.0, transition};
    return subdivideCourseList({start, end}, std::max(levels, 0) + 1);
}

CourseList calcLine(ChartPosition from, ChartPosition to, double alt1, double alt2, bool transition) {
    return calcLine(from, to, alt1, alt2, levelsBetween(from, to), transition);
}

CourseList calcLine(ChartPosition from, double course, double lengthNM, double alt1, double alt2, int levels,
                    bool transition) {
    const double metres = lengthNM * MetresPerNauticalMile;
    const double radians = course / DegreesPerRadian;
    const irr::core::vector3d<float> end(static_cast<float>(std::sin(radians) * metres), static_cast<float>(alt1),
                                         static_cast<float>(std::cos(radians) * metres));
    return calcLine(from, Vector3df2ChartPosition(from, end), alt1, alt2, levels, transition);
}

} // namespace skyvane
