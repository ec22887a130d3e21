#include "chart/geodesy/Angles.h"
#include "chart/geodesy/EarthConstants.h"
#include "chart/geodesy/GreatCircle.h"
#include "chart/geodesy/LocalFrame.h"
#include "procedures/course/CourseCleansing.h"
#include "procedures/course/CourseLines.h"
#include "procedures/course/CourseTurns.h"
#include "procedures/course/Interception.h"
#include "procedures/course/PerfectEntry.h"

#include <cmath>
#include <gtest/gtest.h>
#include <iterator>
#include <limits>
#include <random>

namespace skyvane {
namespace {

constexpr unsigned Seed = 20815;
constexpr double MetresPerSecondPerKnotTwin = 1852.0 / 3600.0;

class Flights {
public:
    double between(double least, double most) { return std::uniform_real_distribution<double>(least, most)(random_); }
    ChartPosition position() { return {between(-180.0, 360.0), between(-65.0, 65.0)}; }
    double course() { return between(0.0, 360.0); }
    ChartPosition near(const ChartPosition& place, double least, double most) {
        const double metres = between(least, most), radians = course() / DegreesPerRadian;
        return Vector3df642ChartPosition(place, {std::sin(radians) * metres, 0.0, std::cos(radians) * metres});
    }

private:
    std::mt19937 random_{Seed};
};

double courseError(double a, double b) {
    return std::fabs(Angle180(a - b));
}

double lengthOf(const CourseList& list) {
    double metres = 0.0;
    for (auto a = list.begin(), b = std::next(a); b != list.end(); a = b++)
        metres += calcDistance2(a->position, b->position);
    return metres;
}

/// Every leg but those of no length leads where the elements' courses say, within an angle.
void expectSmooth(const CourseList& list, double degrees, int flight) {
    for (auto a = list.begin(), b = std::next(a); b != list.end(); a = b++) {
        if (calcDistance2(a->position, b->position) < 1.0)
            continue;
        ASSERT_LT(courseError(a->course, calcBearing2(a->position, b->position)), degrees) << "flight " << flight;
    }
}

TEST(CourseLines, followTheGreatCircleInPartsOfAQuarterDegree) {
    Flights flights;
    for (int i = 0; i < 300; ++i) {
        const ChartPosition from = flights.position(), to = flights.position();
        const CourseList line = calcLine(from, to, 100.0, 1100.0, false);
        EXPECT_NEAR(lengthOf(line), calcDistance2(from, to), 1.0);
        EXPECT_EQ(line.front().altitude, 100.0);
        EXPECT_EQ(line.back().altitude, 1100.0);
        EXPECT_LT(lengthOf(line) / static_cast<double>(line.size() - 1), 0.36 * MetresPerDegree);
    }
    EXPECT_EQ(calcLine({9.0, 49.0}, {9.0, 49.0}, 0.0, 0.0, true).size(), 3u);
    const CourseList across = calcLine({179.9, 10.0}, {-179.9, 10.0}, 0.0, 0.0, false);
    for (const CourseElement& element : across)
        EXPECT_GT(std::fabs(Angle180(element.position.longitude)), 179.8);
}

TEST(CourseLines, leaveOnTheirCourseForTheirLength) {
    Flights flights;
    for (int i = 0; i < 200; ++i) {
        const ChartPosition from = flights.position();
        const double course = flights.course(), miles = flights.between(0.5, 20.0);
        const CourseList line = calcLine(from, course, miles, 0.0, 0.0, 2, true);
        EXPECT_EQ(line.size(), 9u);
        EXPECT_NEAR(lengthOf(line) / 1852.0, miles, miles * 0.006);
        EXPECT_LT(courseError(line.front().course, course), 1.0);
    }
}

TEST(CourseTurns, keepTheirRateAndEndOnCourse) {
    Flights flights;
    for (int i = 0; i < 2000; ++i) {
        const ChartPosition start = flights.position();
        const double from = flights.course(), to = flights.course(), rate = flights.between(1.5, 6.0),
                     knots = flights.between(60.0, 200.0), step = flights.between(3.0, 15.0);
        const CourseList turn = calcTurn(start, from, to, rate, knots, 300.0f, 400.0f, false, step, true);
        EXPECT_LT(courseError(turn.back().course, to), 1e-6);
        EXPECT_EQ(turn.back().altitude, 400.0);
        const double turned = courseError(from, to);
        const double radius = knots * MetresPerSecondPerKnotTwin / (rate / DegreesPerRadian);
        // Chords are shorter than the arc by at most the square of half a step over six.
        EXPECT_NEAR(lengthOf(turn), turned / DegreesPerRadian * radius, 1.0 + 0.012 * turned / 57.0 * radius) << i;
        expectSmooth(turn, 0.5 * step + 1.0, i);
    }
}

TEST(CourseTurns, takeTheSideTold) {
    const auto side = [](double from, double to, bool left) {
        const CourseList turn = calcTurn({9.0, 49.0}, from, to, 3.0, 100.0, 0.0f, 0.0f, false, 15.0, left);
        return Angle180(std::next(turn.begin())->course - from);
    };
    EXPECT_LT(side(0.0, 180.0, true), 0.0);
    EXPECT_GT(side(0.0, 180.0, false), 0.0);
    EXPECT_GT(side(0.0, 179.2, false), 0.0);
    EXPECT_LT(side(0.0, 179.2, true), 0.0);
    EXPECT_GT(side(0.0, 170.0, true), 0.0);
    EXPECT_GT(side(710.0, 40.0, true), 0.0);
}

TEST(CourseTurns, standOnTheSpotWithoutTurningOrSpeed) {
    EXPECT_EQ(calcTurn({9.0, 49.0}, 90.0, 90.0, 3.0, 100.0, 1.0f, 2.0f, true, 15.0, true).size(), 2u);
    const CourseList still = calcTurn({9.0, 49.0}, 0.0, 90.0, 0.0, 0.0, 0.0f, 0.0f, true, 0.0, true);
    EXPECT_LT(lengthOf(still), 0.01);
    const double nan = std::numeric_limits<double>::quiet_NaN();
    EXPECT_EQ(calcTurn({nan, nan}, nan, 90.0, nan, nan, 0.0f, 0.0f, true, nan, true).size(), 2u);
}

TEST(DirectWithStartingTurn, turnsTowardsTheTargetAndArrives) {
    Flights flights;
    for (int i = 0; i < 2000; ++i) {
        const ChartPosition start = flights.position();
        const ChartPosition target = flights.near(start, 100.0, 40000.0);
        const double course = flights.course(), knots = flights.between(60.0, 200.0);
        const CourseList way = calcDirectWithStartingTurn(start, course, target, 5.0, knots, 3.0, 500.0, 900.0, false);
        EXPECT_LT(calcDistance2(way.front().position, start), 0.1);
        EXPECT_LT(calcDistance2(way.back().position, target), 0.1);
        EXPECT_NEAR(way.back().altitude, 900.0, 0.01);
        const double radius = knots * MetresPerSecondPerKnotTwin / (3.0 / DegreesPerRadian);
        if (calcDistance2(start, target) > 6.0 * radius) {
            EXPECT_LT(courseError(way.front().course, course), 2.0);
            expectSmooth(way, 8.0, i);
        }
    }
}

TEST(DirectWithStartingTurn, doesNotCircleForeverAroundATargetInside) {
    // Just over two radii away, abeam ahead: inside the circle of the turn.
    const double radius = 100.0 * MetresPerSecondPerKnotTwin / (3.0 / DegreesPerRadian);
    const ChartPosition start(9.0, 49.0);
    const ChartPosition target = Vector3df642ChartPosition(start, {radius * 1.45, 0.0, radius * 1.45});
    const CourseList way = calcDirectWithStartingTurn(start, 0.0, target, 5.0, 100.0, 3.0, 0.0, 0.0, false);
    EXPECT_LT(calcDistance2(way.back().position, target), 0.1);
    EXPECT_LT(lengthOf(way), 8.0 * radius);
}

TEST(PerfectEntry, endsOnCourseAtTheTargetAndIsContinuous) {
    Flights flights;
    for (int i = 0; i < 2000; ++i) {
        const ChartPosition start = flights.position();
        const ChartPosition target = flights.near(start, 0.0, 30000.0);
        const double course = flights.course(), end = flights.course(), knots = flights.between(60.0, 160.0);
        const CourseList way = calcPerfectEntry(start, 1000.0, course, target, 500.0, end, knots, 3.0);
        const double radius = knots * 1852.0 / 3600.0 / (3.0 / DegreesPerRadian);
        EXPECT_LT(calcDistance2(way.front().position, start), 0.1);
        EXPECT_LT(calcDistance2(way.back().position, target), 0.1);
        EXPECT_LT(courseError(way.back().course, end), 1e-9);
        EXPECT_LT(courseError(way.front().course, course), 6.0) << i;
        EXPECT_LT(courseError(std::prev(way.end(), 2)->course, end), 6.0) << i;
        EXPECT_LT(lengthOf(way), calcDistance2(start, target) * 1.01 + 4.0 * 3.1416 * radius + 10.0) << i;
        for (auto a = way.begin(), b = std::next(a); std::next(b) != way.end(); a = b++)
            EXPECT_LT(courseError(a->course, b->course), 9.5) << i;
    }
}

TEST(PerfectEntry, fliesStraightWhereNothingHasToTurn) {
    const ChartPosition start(9.0, 0.0), target(9.0, 0.2);
    const CourseList way = calcPerfectEntry(start, 0.0, 0.0, target, 100.0, 0.0, 100.0, 3.0);
    EXPECT_NEAR(lengthOf(way), calcDistance2(start, target), 0.5);
    EXPECT_EQ(way.size(), 2u);
}

TEST(PerfectEntry, FliesNoCircleToATargetStraightAhead) {
    Flights flights;
    for (int i = 0; i < 500; ++i) {
        const ChartPosition start = flights.position();
        const double course = flights.course(), metres = flights.between(0.0, 200.0);
        const double way = (course + flights.between(-4.0, 4.0)) / DegreesPerRadian;
        const ChartPosition target =
            Vector3df642ChartPosition(start, {std::sin(way) * metres, 0.0, std::cos(way) * metres});
        const double end = way * DegreesPerRadian + flights.between(-4.0, 4.0);
        const CourseList list =
            calcPerfectEntry(start, 900.0, course, target, 900.0, metres < 1.0 ? course : end, 110.0, 3.0);
        EXPECT_LT(lengthOf(list), metres + 5.0) << i;
        EXPECT_LT(calcDistance2(list.back().position, target), 0.1) << i;
    }
    EXPECT_GT(lengthOf(calcPerfectEntry({9.0, 49.0}, 0.0, 90.0, {9.0, 49.0}, 0.0, 100.0, 110.0, 3.0)), 6000.0);
}

TEST(PerfectEntry, mirrorsItself) {
    Flights flights;
    const ChartPosition start(9.0, 0.0);
    for (int i = 0; i < 200; ++i) {
        const double x = flights.between(-9000.0, 9000.0), z = flights.between(-9000.0, 9000.0),
                     course = flights.course(), end = flights.course();
        const CourseList one =
            calcPerfectEntry(start, 0.0, course, Vector3df642ChartPosition(start, {x, 0.0, z}), 0.0, end, 100.0, 3.0);
        const CourseList other = calcPerfectEntry(start, 0.0, -course, Vector3df642ChartPosition(start, {-x, 0.0, z}),
                                                  0.0, -end, 100.0, 3.0);
        EXPECT_NEAR(lengthOf(one), lengthOf(other), 0.5) << i;
    }
}

TEST(PerfectEntry, comesFromAfarOnALine) {
    const ChartPosition start(9.0, 49.0), target(12.0, 49.0);
    const CourseList way = calcPerfectEntry(start, 0.0, 90.0, target, 0.0, 90.0, 100.0, 3.0);
    EXPECT_NEAR(lengthOf(way), calcDistance2(start, target), 3000.0);
    EXPECT_TRUE(way.front().transition);
    const CourseList still = calcPerfectEntry(start, 7.0, 90.0, start, 3.0, 90.0, 0.0, 0.0);
    EXPECT_EQ(still.back().altitude, 3.0);
}

TEST(Interception, endsOnTheRadialThroughTheFix) {
    Flights flights;
    for (int i = 0; i < 2000; ++i) {
        const ChartPosition fix = flights.position();
        const ChartPosition start = flights.near(fix, 8000.0, 60000.0);
        const double radial = flights.course(), offset = flights.between(25.0, 60.0);
        const bool towards = i % 2 == 0;
        const CourseList way = calculateInterception(start, flights.course(), 1000.0, fix, radial, 1600.0, 3.0, 100.0,
                                                     towards, offset, 15.0, false);
        ASSERT_FALSE(way.empty());
        EXPECT_NEAR(way.back().altitude, 1600.0, 0.1);
        // Beside the line by less than the local frame bends over the distance.
        const irr::core::vector3d<double> end = ChartPosition2Vector3df64(fix, way.back().position, 0.0);
        const double beside = end.X * std::cos(radial / DegreesPerRadian) - end.Z * std::sin(radial / DegreesPerRadian);
        const double away = std::hypot(end.X, end.Z);
        EXPECT_LT(std::fabs(beside), 20.0 + away * 0.05) << i;
    }
}

TEST(Interception, IsOnePathFromTheAircraftAlsoFromFarAway) {
    Flights flights;
    for (int i = 0; i < 500; ++i) {
        const ChartPosition fix = flights.position(), start = flights.near(fix, 66000.0, 180000.0);
        const double radial = flights.course(), offset = flights.between(25.0, 90.0);
        const CourseList list = calculateInterception(start, flights.course(), 900.0, fix, radial, 1200.0, 3.0, 110.0,
                                                      i % 2 == 0, offset, 15.0, false);
        ASSERT_GT(list.size(), 4u) << i;
        EXPECT_LT(calcDistance2(list.front().position, start), 1.0) << i;
        const double flown = i % 2 == 0 ? radial + 180.0 : radial;
        EXPECT_LT(courseError(list.back().course, flown), 1.0) << i;
        expectSmooth(list, 23.0, i); // nothing that can't be flown
    }
}

TEST(CourseCleansing, removesPairsThatDisagree) {
    CourseList line = calcLine({9.0, 0.0}, {10.0, 0.0}, 0.0, 0.0, 2, false);
    const std::size_t straight = line.size();
    courseListCleansing(line, 10.0);
    EXPECT_EQ(line.size(), straight);
    std::next(line.begin(), 3)->course = 200.0;
    courseListCleansing(line, 10.0);
    EXPECT_EQ(line.size(), straight - 2);
    CourseList broken(5, CourseElement{{9.0, 49.0}, 0.0, 0.0, false});
    for (CourseElement& element : broken)
        element.course = 70.0 * static_cast<double>(&element - &broken.front());
    courseListCleansing(broken, 0.0);
    EXPECT_LE(broken.size(), 1u);
}

TEST(CourseCurveCleansing, takesZigzagsOut) {
    CourseList list = calcLine({9.0, 0.0}, {9.4, 0.0}, 0.0, 0.0, 2, false);
    std::next(list.begin(), 4)->position.latitude += 0.05;
    const double zigzag = lengthOf(list);
    courseListCurveCleansing(list, 5.0);
    EXPECT_LT(lengthOf(list), zigzag - 1000.0);
    EXPECT_NEAR(lengthOf(list), calcDistance2({9.0, 0.0}, {9.4, 0.0}), 1.0);
    Flights flights;
    for (int i = 0; i < 50; ++i) { // ends, whatever it is given
        CourseList wild;
        for (int k = 0; k < 40; ++k)
            wild.push_back({flights.position(), 0.0, flights.course(), false});
        courseListCurveCleansing(wild, -10.0);
        EXPECT_GE(wild.size(), 2u);
    }
}

TEST(CourseAltitudes, growAlongThePath) {
    CourseList line = calcLine({9.0, 0.0}, {10.0, 0.0}, 100.0, 100.0, 1, false);
    CourseList same = line;
    applyAltitudeChange(same, 5.0, 5.0);
    EXPECT_EQ(same.back().altitude, 100.0);
    applyAltitudeChange(line, 400.0, 5.0);
    EXPECT_NEAR(std::next(line.begin(), 2)->altitude, 300.0, 0.01);
    EXPECT_NEAR(line.back().altitude, 500.0, 0.01);
    CourseList none;
    applyAltitudeChange(none, 400.0, 5.0);
    const CourseList back = reverseCourseList(line);
    EXPECT_NEAR(back.front().altitude, 500.0, 0.01);
    EXPECT_LT(courseError(back.front().course, 270.0), 0.1);
}

TEST(DistanceMetric, countsTheTurn) {
    const ChartPosition here(9.0, 0.0), north(9.0, 0.1);
    EXPECT_NEAR(calcDistanceMetric(here, north, 0.0, 50.0, 1.0), calcDistance2(here, north), 0.01);
    // Half a turn at 3 degrees per second and 50 m/s: half a circle of 955 m radius.
    EXPECT_NEAR(calcDistanceMetric(here, north, 180.0, 50.0, 1.0) - calcDistance2(here, north), 3000.0, 1.0);
}

} // namespace
} // namespace skyvane
