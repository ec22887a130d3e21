#include "procedures/course/PerfectEntry.h"

#include "chart/geodesy/Angles.h"
#include "chart/geodesy/EarthConstants.h"
#include "chart/geodesy/GreatCircle.h"
#include "chart/geodesy/LocalFrame.h"
#include "procedures/course/CourseLines.h"
#include "procedures/course/PlanarTurn.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <vector>

namespace skyvane {

namespace {

using Place = irr::core::vector3d<double>;

constexpr double FarMetres = 92600.0;
constexpr double FullTurn = 6.2831854820251465;
constexpr double LongestPath = 40030179.63828281;
constexpr double VertexStepDegrees = 9.0;
/// Nearer to a full turn than this, in radians, an arc is none: rounding, not a circle to fly.
constexpr double ArcSlack = 1e-6;
/// Vertices nearer to each other than this, in metres, are one.
constexpr double SamePlace = 0.01;

enum class Turn { Right, Left };

double sign(Turn turn) {
    return turn == Turn::Right ? 1.0 : -1.0;
}

/// To the left of a direction.
Place leftOf(const Place& direction) {
    return {-direction.Z, 0.0, direction.X};
}

struct Circle {
    Place centre;
    Turn turn;
};

struct Candidate {
    Circle start, end;
    Place leaves; ///< where the straight part begins
    Place joins;  ///< and where it ends
    double length = LongestPath;
};

/// The problem in the local frame of the start.
struct Entry {
    Place target;
    double course = 0.0;
    double targetCourse = 0.0;
    double radius = 0.0;
};

/// Radians flown from one place of a circle to another.
double arc(const Circle& circle, const Place& from, const Place& to) {
    const Place a = from - circle.centre;
    const Place b = to - circle.centre;
    const double clockwise = std::atan2(a.Z * b.X - a.X * b.Z, a.X * b.X + a.Z * b.Z);
    const double angle = sign(circle.turn) * clockwise;
    const double flown = angle < 0.0 ? angle + FullTurn : angle;
    return flown > FullTurn - ArcSlack ? 0.0 : flown;
}

/// The direction of the straight part between two circles; false when there is none.
bool tangent(const Circle& start, const Circle& end, const Entry& entry, Place& direction) {
    const Place between = end.centre - start.centre;
    const double distance = std::hypot(between.X, between.Z);
    if (start.turn == end.turn) {
        // Circles in one place: the straight part is empty, and the turn goes on as it began.
        direction = distance > 0.0 ? Place(between.X / distance, 0.0, between.Z / distance)
                                   : Place(std::sin(entry.course / DegreesPerRadian), 0.0,
                                           std::cos(entry.course / DegreesPerRadian));
        return true;
    }
    if (!(entry.radius < distance / 2.0 - 1e-8))
        return false;
    const double inclination = std::asin(2.0 * entry.radius / distance) * DegreesPerRadian;
    direction =
        turnedAround(Place(), Place(between.X / distance, 0.0, between.Z / distance), sign(start.turn) * inclination);
    return true;
}

Candidate candidate(Turn first, Turn last, const Entry& entry) {
    Candidate way;
    way.start = {besideCourse(Place(), entry.course, sign(first) * entry.radius), first};
    way.end = {besideCourse(entry.target, entry.targetCourse, sign(last) * entry.radius), last};
    Place direction;
    if (!tangent(way.start, way.end, entry, direction))
        return way;
    // One who turns right flies on the left of the centre.
    way.leaves = way.start.centre + leftOf(direction) * (sign(first) * entry.radius);
    way.joins = way.end.centre + leftOf(direction) * (sign(last) * entry.radius);
    way.length = entry.radius * (arc(way.start, Place(), way.leaves) + arc(way.end, way.joins, entry.target)) +
                 way.leaves.getDistanceFrom(way.joins);
    return way;
}

void appendArc(std::vector<Place>& path, const Circle& circle, const Place& from, const Place& to) {
    const double degrees = arc(circle, from, to) * DegreesPerRadian;
    for (double turned = VertexStepDegrees; turned < degrees; turned += VertexStepDegrees)
        path.push_back(turnedAround(circle.centre, from, sign(circle.turn) * turned));
    path.push_back(to);
}

/// Whether a leg straight to the target is off both courses by no more than a chord is off its arc. On the spot only
/// the courses count.
bool isStraightAhead(const Entry& entry) {
    constexpr double offChord = VertexStepDegrees / 2.0, onTheSpot = 1.0;
    const bool isThere = std::hypot(entry.target.X, entry.target.Z) < onTheSpot;
    const double way = isThere ? entry.course : std::atan2(entry.target.X, entry.target.Z) * DegreesPerRadian;
    return std::fabs(Angle180(way - entry.course)) <= offChord &&
           std::fabs(Angle180(way - entry.targetCourse)) <= offChord;
}

std::vector<Place> shortestPath(const Entry& entry) {
    Candidate best;
    for (const Turn first : {Turn::Right, Turn::Left})
        for (const Turn last : {Turn::Right, Turn::Left}) {
            const Candidate way = candidate(first, last, entry);
            if (way.length < best.length)
                best = way;
        }
    std::vector<Place> path{Place()};
    // Nobody flies a circle to set a hair's breadth right.
    const bool hasCircle = best.length > std::hypot(entry.target.X, entry.target.Z) + FullTurn / 2.0 * entry.radius;
    if (best.length < LongestPath && !(hasCircle && isStraightAhead(entry))) {
        appendArc(path, best.start, Place(), best.leaves);
        path.push_back(best.joins);
        appendArc(path, best.end, best.joins, entry.target);
    }
    path.push_back(entry.target);
    const auto same = [](const Place& a, const Place& b) { return a.getDistanceFrom(b) < SamePlace; };
    path.erase(std::unique(path.begin(), path.end(), same), path.end());
    if (path.size() == 1)
        path.push_back(entry.target);
    return path;
}

CourseList withAltitudes(const std::vector<Place>& path, const ChartPosition& origin, double alt, double targetAlt) {
    double total = 0.0;
    for (std::size_t i = 1; i < path.size(); ++i)
        total += path[i].getDistanceFrom(path[i - 1]);
    CourseList list;
    double flown = 0.0;
    for (std::size_t i = 0; i < path.size(); ++i) {
        if (i > 0)
            flown += path[i].getDistanceFrom(path[i - 1]);
        const double share = total > 0.0 ? flown / total : 1.0;
        list.push_back(
            {Vector3df642ChartPosition(origin, path[i]), share * targetAlt + (1.0 - share) * alt, 0.0, true});
    }
    return list;
}

} // namespace

CourseList calcPerfectEntry(ChartPosition pos, double alt, double course, ChartPosition target, double targetAlt,
                            double targetCourse, double speed, double rate) {
    CourseList list;
    if (calcDistance2(pos, target) > FarMetres) {
        const double bearing = calcBearing2(target, pos);
        const double radians = bearing / DegreesPerRadian;
        const ChartPosition near =
            Vector3df642ChartPosition(target, Place(std::sin(radians) * FarMetres, 0.0, std::cos(radians) * FarMetres));
        list = calcLine(pos, near, alt, alt, true);
        pos = near;
        course = bearing + 180.0;
    }
    Entry entry;
    entry.target = ChartPosition2Vector3df64(pos, target, 0.0);
    entry.course = course;
    entry.targetCourse = targetCourse;
    entry.radius = speed * MetresPerNauticalMile / 3600.0 / (rate / DegreesPerRadian);

    CourseList turns = withAltitudes(shortestPath(entry), pos, alt, targetAlt);
    for (auto a = turns.begin(), b = std::next(a); b != turns.end(); a = b++)
        a->course = calcBearing2(a->position, b->position);
    turns.back().position = target;
    turns.back().course = targetCourse;
    list.splice(list.end(), turns);
    return list;
}

} // namespace skyvane
