#include "procedures/approach/TrafficCircuit.h"

#include "chart/geodesy/Angles.h"
#include "chart/geodesy/EarthConstants.h"
#include "chart/geodesy/GreatCircle.h"
#include "core/text/Numbers.h"
#include "procedures/course/CourseCleansing.h"
#include "procedures/course/CourseLines.h"
#include "procedures/course/CourseTurns.h"
#include "procedures/course/PerfectEntry.h"
#include "procedures/course/PlanarTurn.h"

#include <algorithm>
#include <cmath>
#include <iterator>

namespace skyvane {

namespace {

constexpr double TurnRate = 3.0;
/// Three degrees per second in radians.
constexpr double StandardTurnRate = 0.052359877566666664;
constexpr double QuarterTurn = 1.5707963705062866;
constexpr double TurnStepDegrees = 15.0;
/// A fix within this angle of the extended centre line lies on it.
constexpr double OnCentreLineDegrees = 0.5;
/// Smaller differences of altitude need no leg of their own.
constexpr double LeastLegMetres = 10.0;
constexpr double UpwindHeightMetres = 33.0;
constexpr double UpwindTolerances = 2.0;
constexpr double FarAway = 9999999999.0;
constexpr double TurnWeight = 2.0;
/// Of final, as climb over length. What is flatter, or rises to the threshold, can't be descended along: 500 feet per
/// nautical mile stand in for it.
constexpr double FlattestSlope = 0.002;
constexpr double UsualSlope = 500.0 * MetresPerFoot / MetresPerNauticalMile;

double milesOf(double metres) {
    return metres / MetresPerNauticalMile;
}

void putInFront(CourseList& list, CourseList front) {
    list.splice(list.begin(), front);
}

/// The circuit of one approach. Its legs are laid out against the direction of flight, from the final approach fix.
class Circuit {
public:
    Circuit(const ApproachPath& path, bool isLeftTraffic, double circuitAltitude);

    CourseList flownFrom(const ApproachStart& start) const;

private:
    double finalBearing() const;
    CourseList turn(const ChartPosition& from, double fromCourse, double toCourse, double alt1, double alt2,
                    bool transition) const;
    CourseList line(const ChartPosition& from, double course, double metres, double alt1, double alt2,
                    bool transition) const;
    CourseList upwind() const;
    /// From the crosswind turn's start to the threshold.
    CourseList fromCrosswind() const;
    void putBase(CourseList& list) const;
    void putDownwind(CourseList& list) const;
    /// From the far end of the runway to where the crosswind turn begins.
    CourseList takeOffSide() const;
    CourseList::iterator entryOf(CourseList& list, const ChartPosition& position) const;

    const ApproachPath& path_;
    double circuitAltitude_;
    double side_;        ///< Degrees from the course to base: 90 on the left of it, -90 on the right.
    double finalLength_; ///< metres
    double metresPerSecond_;
    double slope_;          ///< of final
    double quarterTurn_;    ///< metres
    double turnedAltitude_; ///< where the turn onto final begins
    CourseList upwind_;
};

Circuit::Circuit(const ApproachPath& path, bool isLeftTraffic, double circuitAltitude)
    : path_(path), circuitAltitude_(circuitAltitude), side_(isLeftTraffic ? 90.0 : -90.0),
      finalLength_(calcDistance2(path.threshold, path.faf)),
      metresPerSecond_(path.groundSpeed * MetresPerSecondPerKnot) {
    const double slope = (path.fafAltitude - path.thresholdElevation) / finalLength_;
    slope_ = slope >= FlattestSlope && std::isfinite(slope) ? slope : UsualSlope;
    quarterTurn_ = metresPerSecond_ / StandardTurnRate * QuarterTurn;
    turnedAltitude_ = std::min(circuitAltitude, path.fafAltitude + quarterTurn_ * slope_);
    upwind_ = upwind();
}

CourseList Circuit::turn(const ChartPosition& from, double fromCourse, double toCourse, double alt1, double alt2,
                         bool transition) const {
    return calcTurn(from, Angle0to360(fromCourse), Angle0to360(toCourse), TurnRate, path_.groundSpeed,
                    static_cast<float>(alt1), static_cast<float>(alt2), transition, TurnStepDegrees, true);
}

CourseList Circuit::line(const ChartPosition& from, double course, double metres, double alt1, double alt2,
                         bool transition) const {
    return calcLine(from, Angle0to360(course), milesOf(metres), alt1, alt2, 1, transition);
}

double Circuit::finalBearing() const {
    const double off = calcFinalOffset(path_);
    if (std::fabs(off) <= SteepestFinalDegrees)
        return calcBearing2(path_.faf, path_.threshold);
    return roundHalfAway(Angle0to360(path_.course + std::copysign(SteepestFinalDegrees, off)));
}

CourseList Circuit::upwind() const {
    const double height = path_.altitudeTolerance ? UpwindTolerances * *path_.altitudeTolerance : UpwindHeightMetres;
    return line(path_.farThreshold, path_.course, finalLength_, path_.thresholdElevation + height, path_.fafAltitude,
                true);
}

void Circuit::putBase(CourseList& list) const {
    const double final = finalBearing();
    const double awayFromFinal = path_.course + 180.0 + side_;
    putInFront(list, reverseCourseList(
                         turn(path_.faf, final + 180.0, awayFromFinal, path_.fafAltitude, turnedAltitude_, false)));
    const double above = circuitAltitude_ - list.front().altitude;
    if (above > LeastLegMetres)
        putInFront(list, reverseCourseList(line(list.front().position, awayFromFinal, above / slope_,
                                                list.front().altitude, circuitAltitude_, false)));
    const double off = Angle180(final - path_.course);
    const double beyond = side_ > 0.0 ? -off : off;
    if (beyond > OnCentreLineDegrees) {
        const double metres = std::sin(beyond / DegreesPerRadian) * finalLength_ + quarterTurn_;
        const double altitude = list.front().altitude;
        putInFront(list,
                   reverseCourseList(line(list.front().position, awayFromFinal, metres, altitude, altitude, false)));
    }
    putInFront(list, reverseCourseList(turn(list.front().position, awayFromFinal, path_.course, circuitAltitude_,
                                            circuitAltitude_, false)));
}

void Circuit::putDownwind(CourseList& list) const {
    const ChartPosition from = list.front().position;
    const ChartPosition& upwindEnd = upwind_.back().position;
    const double off = Angle180(calcBearing2(from, upwindEnd) - path_.course);
    const double metres = calcDistance2(from, upwindEnd) * std::cos(off / DegreesPerRadian);
    putInFront(list, reverseCourseList(line(from, path_.course, metres, circuitAltitude_, circuitAltitude_, false)));
}

CourseList Circuit::fromCrosswind() const {
    CourseList list = finalLeg(path_);
    putBase(list);
    putDownwind(list);
    putInFront(list, reverseCourseList(turn(list.front().position, path_.course, path_.course + side_, circuitAltitude_,
                                            circuitAltitude_, false)));
    return list;
}

CourseList Circuit::takeOffSide() const {
    CourseList list = upwind_;
    const double crosswind = path_.course - side_;
    CourseList ontoCrosswind =
        turn(list.back().position, path_.course, crosswind, path_.fafAltitude, turnedAltitude_, true);
    list.splice(list.end(), ontoCrosswind);
    const double above = circuitAltitude_ - list.back().altitude;
    if (above > LeastLegMetres) {
        CourseList climb =
            line(list.back().position, crosswind, above / slope_, list.back().altitude, circuitAltitude_, true);
        list.splice(list.end(), climb);
    }
    return list;
}

CourseList::iterator Circuit::entryOf(CourseList& list, const ChartPosition& position) const {
    auto nearest = list.begin();
    double least = FarAway;
    for (auto element = list.begin(); element != list.end(); ++element) {
        const double metric =
            calcDistanceMetric(position, element->position, element->course, metresPerSecond_, TurnWeight);
        if (metric < least) {
            least = metric;
            nearest = element;
        }
    }
    return nearest;
}

CourseList Circuit::flownFrom(const ApproachStart& start) const {
    CourseList circuit = fromCrosswind();
    const auto entry = entryOf(circuit, start.position);
    const CourseElement entered = *entry;
    CourseList rest;
    rest.splice(rest.end(), circuit, circuit.begin(), entry);
    // The crosswind turn's first place lies behind the climb that leads to it.
    if (!rest.empty())
        rest.pop_front();

    CourseList list = calcPerfectEntry(start.position, start.altitude, start.course, entered.position, entered.altitude,
                                       entered.course, path_.groundSpeed, path_.turnRate);
    list.splice(list.end(), circuit);
    CourseList climbOut = takeOffSide();
    list.splice(list.end(), climbOut);
    list.splice(list.end(), rest);
    list.push_back(entered);
    return list;
}

} // namespace

CourseList trafficPatternApproach(const ApproachPath& path, bool isLeftTraffic, double circuitAltitude,
                                  const ApproachStart& start) {
    return Circuit(path, isLeftTraffic, circuitAltitude).flownFrom(start);
}

} // namespace skyvane
