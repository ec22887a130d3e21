#include "chart/geodesy/Angles.h"
#include "chart/geodesy/EarthConstants.h"
#include "chart/geodesy/GreatCircle.h"
#include "chart/geodesy/LocalFrame.h"
#include "procedures/course/CourseLines.h"
#include "procedures/framework/IProcedure.h"
#include "support/AllocationCounter.h"

#include <cmath>
#include <gtest/gtest.h>
#include <iterator>
#include <limits>
#include <random>

namespace skyvane {
namespace {

/// Flies a path that a test gives.
class GivenPath : public IProcedure {
public:
    explicit GivenPath(CourseList list, const ProcedureValues& values = {}) : IProcedure(nullptr) {
        setCourseList(std::move(list));
        setValues(values);
    }
    void calculateCourseList(ChartPosition, double, double) override {}
    std::string getName() override { return "given"; }
    Type getType() override { return None; }
};

/// East along the equator for a degree, then north for a degree, climbing 600 m on the second leg.
CourseList corner() {
    CourseList list = calcLine({10.0, 0.0}, {11.0, 0.0}, 1000.0, 1000.0, false);
    list.splice(list.end(), calcLine({11.0, 0.0}, {11.0, 1.0}, 1000.0, 1600.0, false));
    return list;
}

constexpr double MilesPerDegree = MetresPerDegree / 1852.0;

TEST(CourseGuidance, givesTheFiguresThatAPilotComputes) {
    GivenPath path(corner());
    // Half way along the first leg, 0.01 degrees north of it, 100 knots to the east.
    path.updatePosRelated({10.5, 0.01}, 1030.48, 100.0, 90.0);
    const Guidance& guidance = path.getGuidance();
    EXPECT_NEAR(guidance.crossTrackError, 0.01 * MilesPerDegree, 0.001);
    EXPECT_FALSE(guidance.steerSide); // left of it
    EXPECT_NEAR(guidance.pathAltitude, 1000.0 / 0.3048, 0.5);
    EXPECT_NEAR(guidance.altitudeError, 100.0, 0.5);
    EXPECT_NEAR(guidance.closestPosition.longitude, 10.5, 1e-6);
    EXPECT_NEAR(guidance.closestPosition.latitude, 0.0, 1e-6);
    EXPECT_NEAR(guidance.closestCourse, 90.0, 0.01);
    // The corner has no element of its own course but the second leg's start; the length runs through it.
    EXPECT_NEAR(guidance.bearing, 90.0 + std::atan2(0.01, 0.5) * 57.29577951, 0.01);
    EXPECT_NEAR(guidance.length, (std::hypot(0.5, 0.01) + 1.0) * MilesPerDegree, 0.02);
    EXPECT_NEAR(path.getETE(), guidance.length / 100.0 * 3600.0, 1.0);
    EXPECT_NEAR(path.calcTotalLength(), 2.0 * MilesPerDegree, 0.02);
    // On the second leg, right of it, the end is what comes next.
    path.updatePosRelated({11.02, 0.5}, 1300.0, 100.0, 0.0);
    EXPECT_TRUE(guidance.steerSide);
    EXPECT_NEAR(guidance.closestAltitude, 1300.0, 0.5);
    EXPECT_NEAR(guidance.closestSlope, 600.0 / MetresPerDegree, 1e-6);
    EXPECT_NEAR(guidance.bearing, 360.0 - std::atan2(0.02, 0.5) * 57.29577951, 0.01);
    EXPECT_NEAR(guidance.length, std::hypot(0.5, 0.02) * MilesPerDegree, 0.01);
}

TEST(CourseGuidance, findsTheNearestPlaceAsASlowTwinDoes) {
    std::mt19937 random(99);
    std::uniform_real_distribution<double> unit(0.0, 1.0);
    for (int i = 0; i < 2000; ++i) {
        const ChartPosition from(unit(random) * 360.0 - 180.0, unit(random) * 120.0 - 60.0);
        const ChartPosition to(from.longitude + unit(random) - 0.5, from.latitude + unit(random) - 0.5);
        const double low = unit(random) * 3000.0, high = unit(random) * 3000.0;
        GivenPath path(calcLine(from, to, low, high, false));
        const ChartPosition own(from.longitude + unit(random) - 0.5, from.latitude + unit(random) - 0.5);
        const double altitude = unit(random) * 3000.0;
        path.updatePosRelated(own, altitude, 100.0, 0.0);
        double least = std::numeric_limits<double>::infinity();
        const CourseList& list = path.getCourseList();
        for (auto a = list.begin(), b = std::next(a); b != list.end(); a = b++)
            for (int step = 0; step <= 1000; ++step) {
                const double t = step / 1000.0;
                const ChartPosition at(a->position.longitude +
                                           Angle180(b->position.longitude - a->position.longitude) * t,
                                       a->position.latitude + (b->position.latitude - a->position.latitude) * t);
                const auto place = ChartPosition2Vector3df64(own, at, a->altitude + (b->altitude - a->altitude) * t);
                least = std::min(least, place.getDistanceFrom({0.0, altitude, 0.0}));
            }
        const Guidance& found = path.getGuidance();
        const double distance = std::hypot(found.closestDistanceMetres, altitude - found.closestAltitude);
        ASSERT_LE(distance, least + 1e-6) << i;
        ASSERT_NEAR(distance, least, 0.5) << i;
    }
}

TEST(CourseGuidance, passesTheAntimeridianAndTakesNoShortcutBehindTheEarth) {
    GivenPath across(calcLine({179.5, 10.0}, {-179.5, 10.0}, 500.0, 500.0, false));
    across.updatePosRelated({-179.9, 10.02}, 500.0, 120.0, 90.0);
    EXPECT_LT(across.getGuidance().crossTrackError, 0.02 * 60.2);
    EXPECT_NEAR(across.getLength(), 0.4 * std::cos(10.0 / 57.29577951) * MilesPerDegree, 0.1);
    // From the other side of the earth the same path is far away, not overhead.
    across.updatePosRelated({0.0, 10.0}, 500.0, 120.0, 90.0);
    EXPECT_GT(across.getGuidance().closestDistanceMetres, 1.9e7);
}

TEST(CourseGuidance, warnsOfWhatIsWatched) {
    ProcedureValues values;
    values.checkAltitude = values.checkCourse = values.checkGroundSpeed = true;
    values.targetGroundSpeed = 115.0;
    GivenPath path(corner(), values);
    path.updatePosRelated({10.5, 0.00013}, 1015.0, 124.9, 90.0); // 14.5 m beside, 15 m above, 9.9 knots faster
    EXPECT_FALSE(path.getCourseWarning() || path.getAltitudeWarning() || path.getGroundSpeedWarning());
    path.updatePosRelated({10.5, 0.00014}, 1015.5, 125.1, 90.0);
    EXPECT_TRUE(path.getCourseWarning() && path.getAltitudeWarning() && path.getGroundSpeedWarning());
    GivenPath unwatched(corner());
    unwatched.updatePosRelated({10.5, 0.5}, 5000.0, 400.0, 90.0);
    EXPECT_FALSE(unwatched.getCourseWarning() || unwatched.getAltitudeWarning() || unwatched.getGroundSpeedWarning());
}

TEST(CourseGuidance, finishesAtTheEndOfThePathAndTellsItOnce) {
    GivenPath path(corner());
    path.updatePosRelated({11.0, 0.9}, 1600.0, 100.0, 0.0);
    EXPECT_FALSE(path.shallSwitchToNextProc());
    path.updatePosRelated({11.0, 0.9985}, 1600.0, 100.0, 0.0);
    EXPECT_TRUE(path.shallSwitchToNextProc());
    EXPECT_FALSE(path.shallSwitchToNextProc());
    path.updatePosRelated({11.0, 0.9985}, 1600.0, 100.0, 0.0);
    path.updatePosRelated({11.0, 0.9985}, 1600.0, 0.05, 0.0); // a standstill keeps it
    EXPECT_EQ(path.getETE(), -1);
    EXPECT_TRUE(path.shallSwitchToNextProc());
}

TEST(CourseGuidance, showsNothingForWhatNobodyKnows) {
    GivenPath empty({});
    empty.updatePosRelated({10.0, 50.0}, 100.0, 100.0, 0.0);
    EXPECT_EQ(empty.getBearing(), -1.0);
    EXPECT_EQ(empty.getLength(), -1.0);
    GivenPath path(corner());
    path.updatePosRelated({10.5, 0.01}, 1000.0, 100.0, 90.0);
    EXPECT_GT(path.getLength(), 0.0);
    path.updatePosRelated({10.5, 0.01}, std::nan(""), 100.0, 90.0);
    EXPECT_EQ(path.getLength(), -1.0);
    EXPECT_EQ(path.getETE(), -1);
    GivenPath point({{{10.0, 50.0}, 300.0, 70.0, false}});
    point.updatePosRelated({10.0, 50.001}, 300.0, 100.0, 0.0);
    EXPECT_NEAR(point.getGuidance().closestDistanceMetres, 0.001 * MetresPerDegree, 0.1);
    EXPECT_EQ(point.getGuidance().closestCourse, 70.0);
    for (const double latitude : {90.0, -90.0, 89.95}) {
        path.updatePosRelated({10.5, latitude}, 1000.0, 100.0, 90.0);
        EXPECT_TRUE(std::isfinite(path.getLength())) << latitude;
    }
}

TEST(CourseGuidance, allocatesNothingInAFrame) {
    GivenPath path(corner());
    const AllocationCounter counter;
    path.updatePosRelated({10.5, 0.01}, 1000.0, 100.0, 90.0);
    EXPECT_EQ(counter.count(), 0u);
}

} // namespace
} // namespace skyvane
