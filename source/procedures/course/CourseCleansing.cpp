#include "procedures/course/CourseCleansing.h"

#include "chart/geodesy/Angles.h"
#include "chart/geodesy/GreatCircle.h"
#include "procedures/course/CourseLines.h"

#include <cmath>
#include <iterator>

namespace skyvane {

namespace {

constexpr double LongLegMetres = 7000.0;
/// Three degrees per second in radians.
constexpr double StandardTurnRate = 0.052359877566666664;
constexpr double Pi = 3.1415927410125732;

double difference(double a, double b) {
    return std::fabs(AngleDiff(a, b));
}

bool disagree(const CourseElement& a, const CourseElement& b, double maxAngle) {
    const double bearing = calcBearing2(a.position, b.position);
    return difference(a.course, b.course) > maxAngle || difference(a.course, bearing) > maxAngle ||
           difference(b.course, bearing) > maxAngle;
}

bool beginsTriple(const CourseList& list, CourseList::iterator a) {
    return a != list.end() && std::next(a) != list.end() && std::next(a, 2) != list.end();
}

/// Three neighbours, and the directions in which the path comes to the first and leaves the last.
struct Triple {
    CourseList::iterator a, b, c;
    double in;
    double out;
};

Triple tripleAt(CourseList& list, CourseList::iterator a) {
    const auto b = std::next(a);
    const auto c = std::next(b);
    const auto after = std::next(c);
    const double in = a == list.begin() ? a->course : calcBearing2(a->position, std::prev(a)->position) + 180.0;
    const double out = after == list.end() ? c->course : calcBearing2(c->position, after->position);
    return {a, b, c, in, out};
}

double deviation(const Triple& t, CourseList::iterator first, CourseList::iterator last) {
    return difference(t.in, calcBearing2(t.a->position, first->position)) +
           difference(t.out, calcBearing2(t.c->position, last->position) + 180.0);
}

/// The line between two elements, without its ends.
void insertLine(CourseList& list, CourseList::iterator from, CourseList::iterator to, bool transition) {
    CourseList line = calcLine(from->position, to->position, from->altitude, to->altitude, transition);
    line.pop_front();
    line.pop_back();
    list.splice(to, line);
}

} // namespace

void applyAltitudeChange(CourseList& list, double change, double minimum) {
    if (!(std::fabs(change) > minimum) || list.empty())
        return;
    double total = 0.0;
    for (auto a = list.begin(), b = std::next(a); b != list.end(); a = b++)
        total += calcDistance2(a->position, b->position);
    if (!(total >= 1.0))
        return;
    double flown = 0.0;
    ChartPosition last = list.front().position;
    for (CourseElement& element : list) {
        if (&element != &list.front())
            flown += calcDistance2(last, element.position);
        last = element.position;
        element.altitude += flown / total * change;
    }
}

void courseListCleansing(CourseList& list, double maxAngle) {
    auto a = list.begin();
    while (a != list.end() && std::next(a) != list.end()) {
        const auto b = std::next(a);
        if (!disagree(*a, *b, maxAngle)) {
            a = b;
            continue;
        }
        const bool first = a == list.begin();
        const auto before = first ? a : std::prev(a);
        const auto after = list.erase(a, std::next(b));
        a = first ? after : before;
    }
}

void courseListCurveCleansing(CourseList& list, double minGain) {
    std::size_t removable = list.size();
    auto a = list.begin();
    while (removable > 0 && beginsTriple(list, a)) {
        const Triple t = tripleAt(list, a);
        if (!(deviation(t, t.c, t.a) < deviation(t, t.b, t.b) - minGain)) {
            ++a;
            continue;
        }
        const bool longLeg = calcDistance2(t.a->position, t.b->position) > LongLegMetres;
        const bool transition = t.b->transition;
        list.erase(t.b);
        --removable;
        if (longLeg)
            insertLine(list, t.a, t.c, transition);
    }
}

CourseList reverseCourseList(const CourseList& list) {
    CourseList reversed(list.rbegin(), list.rend());
    for (CourseElement& element : reversed)
        element.course = Angle0to360(element.course + 180.0);
    return reversed;
}

double calcDistanceMetric(ChartPosition a, ChartPosition b, double course, double speed, double weight) {
    const double turn = std::fabs(Angle180(calcBearing2(a, b) - Angle180(course)));
    return calcDistance2(a, b) + weight * (speed / StandardTurnRate) * (2.0 * turn / 360.0) * Pi;
}

} // namespace skyvane
