#include "chart/elements/AirportElement.h"
#include "chart/geodesy/Angles.h"
#include "chart/geodesy/EarthConstants.h"
#include "chart/geodesy/GreatCircle.h"
#include "chart/geodesy/LocalFrame.h"
#include "procedures/approach/ApproachPath.h"
#include "procedures/approach/LandingRunway.h"
#include "procedures/approach/TrafficCircuit.h"

#include <cmath>
#include <gtest/gtest.h>
#include <iterator>
#include <random>

namespace skyvane {
namespace {

constexpr double MetresPerSecondPerKnotTwin = 1852.0 / 3600.0;

ChartPosition beside(const ChartPosition& from, double course, double ahead, double right) {
    const double c = course / DegreesPerRadian;
    return Vector3df642ChartPosition(
        from, {std::sin(c) * ahead + std::cos(c) * right, 0.0, std::cos(c) * ahead - std::sin(c) * right});
}

double courseError(double a, double b) {
    return std::fabs(Angle180(a - b));
}

/// An airport's runway with its fix on the extended centre line, and an aircraft somewhere around.
struct Flight {
    ApproachPath path;
    double circuitAltitude;
    ApproachStart start;
    double finalLength;
};

class Flights {
public:
    double between(double least, double most) { return std::uniform_real_distribution<double>(least, most)(random_); }

    Flight next() {
        Flight flight;
        ApproachPath& path = flight.path;
        path.threshold = {between(-180.0, 360.0), between(-65.0, 65.0)};
        path.thresholdElevation = between(-300.0, 2500.0);
        path.course = between(0.0, 360.0);
        path.farThreshold = beside(path.threshold, path.course, between(150.0, 4000.0), 0.0);
        flight.finalLength = between(926.0, 5.0 * 1852.0);
        path.faf = beside(path.threshold, path.course, -flight.finalLength, 0.0);
        path.fafAltitude = path.thresholdElevation + 95.0 + flight.finalLength * between(0.03, 0.12);
        path.groundSpeed = between(50.0, 160.0);
        path.turnRate = between(1.5, 4.0);
        if (between(0.0, 1.0) < 0.5)
            path.altitudeTolerance = between(5.0, 60.0);
        flight.circuitAltitude = path.thresholdElevation + between(150.0, 600.0);
        flight.start.position = beside(path.threshold, between(0.0, 360.0), between(0.0, 30000.0), 0.0);
        flight.start.altitude = flight.circuitAltitude + between(-100.0, 1500.0);
        flight.start.course = between(0.0, 360.0);
        return flight;
    }

private:
    std::mt19937 random_{70415};
};

/// Each leg leads where the course of both its elements says, within what a turn's chords make of it, and there is no
/// jump of the altitude. What is shorter than a joint, in metres, is none.
void expectFlyable(const CourseList& list, int flight, double joint = 1.0) {
    for (auto a = list.begin(), b = std::next(a); b != list.end(); a = b++) {
        const double metres = calcDistance2(a->position, b->position);
        ASSERT_TRUE(std::isfinite(metres)) << flight;
        if (metres < joint) {
            ASSERT_LT(std::fabs(a->altitude - b->altitude), 10.01 + metres) << "flight " << flight;
            continue;
        }
        const double bearing = calcBearing2(a->position, b->position);
        ASSERT_LT(courseError(b->course, bearing), 18.5) << "flight " << flight << ", " << metres << " m";
        ASSERT_LT(courseError(a->course, bearing), 18.5) << "flight " << flight << ", " << metres << " m";
    }
}

void expectTouchesDown(const CourseList& list, const Flight& flight, CourseList::const_iterator threshold, int number) {
    const double clear = flight.path.altitudeTolerance ? 1.5 * *flight.path.altitudeTolerance : 20.0;
    ASSERT_NEAR(threshold->altitude, flight.path.thresholdElevation + clear, 0.01) << number;
    ASSERT_GE(std::distance(list.begin(), threshold), 4) << number;
    auto later = threshold;
    for (int leg = 0; leg < 4; ++leg, --later) {
        const auto before = std::prev(later);
        ASSERT_GT(before->altitude, later->altitude) << number;
        const double away = calcDistance2(before->position, threshold->position);
        const ChartPosition foot = beside(threshold->position, flight.path.course, -away, 0.0);
        ASSERT_LT(calcDistance2(foot, before->position), 1.0 + 0.006 * away) << number;
    }
    ASSERT_LT(calcDistance2(later->position, flight.path.faf), 0.2) << number;
    ASSERT_NEAR(later->altitude, flight.path.fafAltitude, 0.01) << number;
}

CourseList::const_iterator atThreshold(const CourseList& list, const ChartPosition& threshold) {
    for (auto element = std::next(list.begin()); element != list.end(); ++element)
        if (!element->transition && calcDistance2(element->position, threshold) < 0.2)
            return element;
    return list.end();
}

/// How far the list reaches to the right of the extended centre line.
double reach(const CourseList& list, const ApproachPath& path, double side) {
    double most = 0.0;
    const double c = path.course / DegreesPerRadian;
    for (const CourseElement& element : list) {
        const auto place = ChartPosition2Vector3df64(path.threshold, element.position, 0.0);
        most = std::max(most, side * (place.X * std::cos(c) - place.Z * std::sin(c)));
    }
    return most;
}

TEST(StraightInApproach, entersFinalOnItsCourseAndEndsAboveTheThreshold) {
    Flights flights;
    for (int i = 0; i < 3000; ++i) {
        const Flight flight = flights.next();
        const CourseList list = straightInApproach(flight.path, flight.start);
        ASSERT_LT(calcDistance2(list.front().position, flight.start.position), 0.2) << i;
        ASSERT_LT(calcDistance2(list.back().position, flight.path.threshold), 0.2) << i;
        ASSERT_LT(courseError(list.back().course, flight.path.course), 0.5) << i;
        expectFlyable(list, i);
        expectTouchesDown(list, flight, std::prev(list.end()), i);
    }
}

TEST(TrafficPattern, isOneContinuousCircuitThatClosesWhereItWasEntered) {
    Flights flights;
    for (int i = 0; i < 3000; ++i) {
        const Flight flight = flights.next();
        const CourseList list = trafficPatternApproach(flight.path, i % 2 == 0, flight.circuitAltitude, flight.start);
        ASSERT_LT(calcDistance2(list.front().position, flight.start.position), 0.2) << i;
        const auto threshold = atThreshold(list, flight.path.threshold);
        ASSERT_NE(threshold, list.end()) << i;
        // Behind the threshold comes the far end, straight ahead; apart from the flight along the runway, all joins.
        const auto farEnd = std::next(threshold);
        const CourseList approach(list.begin(), farEnd), climbOut(farEnd, list.end());
        expectFlyable(approach, i);
        if (calcDistance2(list.back().position, flight.path.threshold) > flight.finalLength)
            expectTouchesDown(list, flight, threshold, i);
        ASSERT_LT(calcDistance2(farEnd->position, flight.path.farThreshold), 0.2) << i;
        // The circuit closes as far as local frames do, which bend by some parts of a thousand.
        expectFlyable(climbOut, i, 0.008 * (flight.finalLength + reach(list, flight.path, i % 2 == 0 ? -1.0 : 1.0)));
        int meetings = 0;
        for (const CourseElement& element : list)
            if (calcDistance2(element.position, list.back().position) < 0.2 &&
                std::fabs(element.altitude - list.back().altitude) < 0.1)
                ++meetings;
        ASSERT_GE(meetings, 2) << i;
    }
}

/// The whole circuit, entered on downwind far from the threshold: without the way that leads to it.
CourseList circuitOf(Flight flight, bool left) {
    flight.start = {beside(flight.path.threshold, flight.path.course, 0.0, left ? -9000.0 : 9000.0),
                    flight.circuitAltitude, flight.path.course + 180.0};
    const CourseList list = trafficPatternApproach(flight.path, left, flight.circuitAltitude, flight.start);
    const ChartPosition entered = list.back().position;
    auto entry = list.begin();
    while (calcDistance2(entry->position, entered) > 0.2)
        ++entry;
    return {entry, list.end()};
}

TEST(TrafficPattern, liesOnItsSideTwoTurnRadiiWideOrAsWideAsItsDescent) {
    Flights flights;
    for (int i = 0; i < 1000; ++i) {
        const Flight flight = flights.next();
        const bool left = i % 2 == 0;
        const CourseList circuit = circuitOf(flight, left);
        const double radius = flight.path.groundSpeed * MetresPerSecondPerKnotTwin / (3.0 / DegreesPerRadian);
        const double slope = (flight.path.fafAltitude - flight.path.thresholdElevation) / flight.finalLength;
        const double turned = flight.path.fafAltitude + slope * radius * 3.14159265 / 2.0;
        double width = 2.0 * radius;
        if (flight.circuitAltitude - turned > 10.0)
            width += (flight.circuitAltitude - turned) / slope;
        // In mid-latitudes the fix may lie a trace off the centre line by the great circle.
        ASSERT_NEAR(reach(circuit, flight.path, left ? -1.0 : 1.0), width, 40.0 + 0.01 * width) << i;
        ASSERT_LT(reach(circuit, flight.path, left ? 1.0 : -1.0), 25.0) << i;
    }
}

TEST(TrafficPattern, mirrorsItself) {
    Flights flights;
    int compared = 0;
    for (int i = 0; i < 1000; ++i) {
        Flight flight = flights.next();
        const ChartPosition origin(9.0, 0.0);
        const auto at = [&](double right, double ahead) { return beside(origin, 0.0, ahead, right); };
        flight.path.course = 0.0;
        flight.path.threshold = origin;
        flight.path.farThreshold = at(0.0, flights.between(200.0, 3000.0));
        const double fixAside = i % 3 == 0 ? flights.between(-3000.0, 3000.0) : 0.0;
        flight.path.faf = at(fixAside, -flight.finalLength);
        const double aside = flights.between(-9000.0, 9000.0), ahead = flights.between(-9000.0, 9000.0);
        flight.start.position = at(aside, ahead);
        const CourseList one = trafficPatternApproach(flight.path, true, flight.circuitAltitude, flight.start);
        flight.path.faf = at(-fixAside, -flight.finalLength);
        flight.start.position = at(-aside, ahead);
        flight.start.course = -flight.start.course;
        const CourseList other = trafficPatternApproach(flight.path, false, flight.circuitAltitude, flight.start);
        const auto mirrored = [&](const CourseElement& a, const CourseElement& b) {
            const auto p = ChartPosition2Vector3df64(origin, a.position, 0.0);
            const auto q = ChartPosition2Vector3df64(origin, b.position, 0.0);
            return std::hypot(p.X + q.X, p.Z - q.Z) < 1.0 && std::fabs(a.altitude - b.altitude) < 0.5;
        };
        const auto places = [](CourseList list) {
            list.unique([](const CourseElement& a, const CourseElement& b) {
                return calcDistance2(a.position, b.position) < 0.2;
            });
            return list;
        };
        // Of two places of the circuit that are as near, rounding may take the one or the other.
        if (!mirrored(one.back(), other.back()))
            continue;
        ++compared;
        const CourseList left = places(one), right = places(other);
        ASSERT_TRUE(std::equal(left.begin(), left.end(), right.begin(), right.end(), mirrored)) << i;
    }
    EXPECT_GT(compared, 990);
}

TEST(TrafficPattern, lengthensBaseForFixesBeyondTheCentreLineOnly) {
    Flights flights;
    for (int i = 0; i < 1000; ++i) {
        Flight flight = flights.next();
        flight.path.threshold.latitude = flights.between(-20.0, 20.0);
        flight.path.farThreshold = beside(flight.path.threshold, flight.path.course, 800.0, 0.0);
        const double off = flights.between(1.0, 60.0);
        const auto reachWith = [&](double degrees, bool left) {
            flight.path.faf = beside(flight.path.threshold, flight.path.course + degrees, -flight.finalLength, 0.0);
            return reach(circuitOf(flight, left), flight.path, left ? -1.0 : 1.0);
        };
        const double radius = flight.path.groundSpeed * MetresPerSecondPerKnotTwin / (3.0 / DegreesPerRadian);
        const double lateral = flight.finalLength * std::sin(off / DegreesPerRadian);
        // The bearing to the threshold lies `off` to the left of the course when the fix lies to the right of the line.
        const double beyond = reachWith(-off, true), within = reachWith(off, true);
        const double quarter = radius * 3.14159265 / 2.0;
        const double trace = 60.0 + 0.01 * (beyond + within);
        // Beyond the line, base leads back over it by as much, and a quarter turn more.
        ASSERT_NEAR(beyond - quarter, within - lateral, trace) << i;
        ASSERT_NEAR(reachWith(off, false), beyond, trace) << i;
    }
}

TEST(TrafficPattern, meetsTheRunwayAt65DegreesAtMost) {
    Flight flight = Flights().next();
    flight.path.threshold = {9.0, 0.0};
    flight.path.course = 0.0;
    flight.path.farThreshold = {9.0, 0.01};
    flight.start = {flight.path.threshold, flight.circuitAltitude, 0.0};
    const auto courseAtFix = [&](double bearing) {
        flight.path.faf = beside(flight.path.threshold, bearing, -flight.finalLength, 0.0);
        const CourseList list =
            trafficPatternApproach(flight.path, true, flight.circuitAltitude,
                                   {beside(flight.path.threshold, 180.0, 50000.0, -50000.0), 0.0, 0.0});
        double course = -1.0;
        for (const CourseElement& element : list)
            if (calcDistance2(element.position, flight.path.faf) < 0.2 && !element.transition) {
                course = element.course;
                break;
            }
        return course;
    };
    EXPECT_NEAR(courseAtFix(64.5), 64.5, 0.2);
    EXPECT_NEAR(courseAtFix(70.0), 65.0, 1e-6);
    EXPECT_NEAR(courseAtFix(130.0), 65.0, 1e-6);
    EXPECT_NEAR(courseAtFix(-64.5), 295.5, 0.2);
    EXPECT_NEAR(courseAtFix(-70.0), 295.0, 1e-6);
}

TEST(TrafficPattern, survivesPolesAntimeridianAndNonsense) {
    const ApproachStart here{{179.99, 60.0}, 500.0, 90.0};
    ApproachPath path;
    path.threshold = {180.0, 60.0};
    path.farThreshold = {-179.99, 60.0};
    path.course = 90.0;
    path.faf = {179.95, 60.0};
    path.fafAltitude = 300.0;
    path.groundSpeed = 100.0;
    path.turnRate = 3.0;
    for (const CourseElement& element : trafficPatternApproach(path, true, 300.0, here))
        EXPECT_LT(calcDistance2(element.position, path.threshold), 20000.0);
    path.threshold = {0.0, 90.0};
    path.farThreshold = {0.0, 89.99};
    path.faf = {180.0, 89.95};
    EXPECT_FALSE(trafficPatternApproach(path, false, 300.0, here).empty());
    // Nothing that climbs or is flat can be descended along: the usual slope stands in.
    path.threshold = {9.0, 49.0};
    path.farThreshold = path.threshold;
    for (const double fixAltitude : {-500.0, 0.0, 0.01})
        for (const double metres : {0.0, 1000.0}) {
            path.faf = beside(path.threshold, 270.0, metres, 0.0);
            path.fafAltitude = fixAltitude;
            path.groundSpeed = metres / 10.0;
            path.turnRate = metres / 1000.0;
            for (const CourseElement& element : trafficPatternApproach(path, true, 300.0, {path.threshold, 0.0, 0.0})) {
                EXPECT_TRUE(std::isfinite(element.altitude));
                EXPECT_LT(calcDistance2(element.position, path.threshold), 60000.0);
            }
        }
}

} // namespace
} // namespace skyvane
