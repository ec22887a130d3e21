#include "chart/geodesy/LocalFrame.h"
#include "core/ini/IniFile.h"
#include "displays/visionmath/LabelPicker.h"
#include "displays/visionmath/OrbitControl.h"
#include "displays/visionmath/ScenePlaces.h"
#include "displays/visionmath/VelocityEstimator.h"
#include "displays/visionmath/VisionSettings.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

namespace skyvane {
namespace {

TEST(ScenePlaces, ShowsTheAircraftOnTheRunwayAndNotInIt) {
    EXPECT_EQ(calcShownHeight(800.0, 805.0), 807.0);
    EXPECT_EQ(calcShownHeight(806.5, 805.0), 807.0) << "lower than the eyes of who stands there";
    EXPECT_EQ(calcShownHeight(810.0, 805.0), 810.0);
    EXPECT_EQ(calcShownHeight(780.0, 805.0), 780.0) << "25 m below is no runway";
    EXPECT_EQ(calcShownHeight(787.0, 805.0), 787.0) << "20 m to the eyes is none either";
    EXPECT_EQ(calcShownHeight(787.1, 805.0), 807.0);
    EXPECT_EQ(calcShownHeight(500.0, std::numeric_limits<double>::infinity()), 500.0);
}

TEST(ScenePlaces, BoxesStayOnTheEarth) {
    const ElementBox box = calcElementBox({1.4, 42.3}, 25000.0);
    EXPECT_NEAR(ChartPosition2Vector3df64({1.4, 42.3}, box.se, 0.0).X, 25000.0, 1e-6);
    EXPECT_NEAR(ChartPosition2Vector3df64({1.4, 42.3}, box.nw, 0.0).Z, 25000.0, 1e-6);
    const ElementBox west = calcElementBox({0.1, 42.3}, 25000.0);
    EXPECT_GT(west.nw.longitude, 359.0);
    EXPECT_GT(west.se.longitude, 360.0);
    const ElementBox pole = calcElementBox({20.0, 89.95}, 25000.0);
    EXPECT_EQ(pole.nw.latitude, 90.0);
    EXPECT_LT(pole.se.longitude - pole.nw.longitude, 360.0);
    const ElementBox limit = calcElementBox({20.0, 89.92}, 25000.0);
    EXPECT_NEAR(limit.se.longitude - limit.nw.longitude, pole.se.longitude - pole.nw.longitude, 1e-9);
}

TEST(OrbitControl, LeavesTheSeatAndComesBack) {
    OrbitControl orbit;
    orbit.drag(0.5, 0.1);
    EXPECT_TRUE(orbit.isFirstPerson());
    EXPECT_EQ(orbit.getYawDegrees(), 0.0) << "in the seat nothing turns";
    orbit.zoom(1.2);
    EXPECT_TRUE(orbit.isFirstPerson());
    orbit.zoom(0.9);
    EXPECT_FALSE(orbit.isFirstPerson());
    const double chase = orbit.getChaseMetres();
    orbit.zoom(0.5);
    EXPECT_DOUBLE_EQ(orbit.getChaseMetres(), 2.0 * chase);
    orbit.drag(2.0, 5.0);
    EXPECT_EQ(orbit.getHeightDegrees(), OrbitControl::highestDegrees);
    EXPECT_LE(std::abs(orbit.getYawDegrees()), 180.0);
    for (const double bad : {0.0, -1.0, std::nan(""), std::numeric_limits<double>::infinity()})
        orbit.zoom(bad);
    EXPECT_DOUBLE_EQ(orbit.getChaseMetres(), 2.0 * chase);
    for (int i = 0; i < 100; ++i)
        orbit.zoom(0.5);
    EXPECT_EQ(orbit.getChaseMetres(), OrbitControl::farthestMetres);
    orbit.reset();
    EXPECT_TRUE(orbit.isFirstPerson());
}

TEST(OrbitControl, TellsTapsFromDragsAndPinches) {
    TapOrDrag finger;
    int right = 0, down = 0;
    finger.press(100, 100);
    EXPECT_FALSE(finger.move(108, 106, 600, right, down)) << "10 of 600 pixels";
    EXPECT_TRUE(finger.release());
    finger.press(100, 100);
    EXPECT_TRUE(finger.move(120, 100, 600, right, down));
    EXPECT_EQ(right, 20);
    EXPECT_TRUE(finger.move(121, 100, 600, right, down));
    EXPECT_EQ(right, 1);
    EXPECT_FALSE(finger.release());
    EXPECT_FALSE(finger.release()) << "nothing was down";

    PinchTracker pinch;
    double factor = 0.0;
    EXPECT_FALSE(pinch.take(1, PinchTracker::Phase::Down, 0, 0, factor));
    EXPECT_FALSE(pinch.take(2, PinchTracker::Phase::Down, 100, 0, factor));
    EXPECT_TRUE(pinch.take(2, PinchTracker::Phase::Move, 150, 0, factor));
    EXPECT_DOUBLE_EQ(factor, 1.5);
    EXPECT_FALSE(pinch.take(3, PinchTracker::Phase::Move, 0, 500, factor)) << "a third finger";
    EXPECT_TRUE(pinch.take(1, PinchTracker::Phase::Move, 150, 0, factor)) << "both on one place";
    EXPECT_TRUE(std::isfinite(factor));
    EXPECT_FALSE(pinch.take(1, PinchTracker::Phase::Up, 150, 0, factor));
    EXPECT_FALSE(pinch.take(2, PinchTracker::Phase::Move, 300, 0, factor));
}

TEST(VisionSettings, PresetsSwitchWhatTheyShow) {
    VisionSwitches user;
    user.terrain = false;
    user.closed = user.heliports = user.standAlone = true;
    EXPECT_TRUE(applyPreset(user, 0) == user);
    EXPECT_TRUE(applyPreset(user, 5) == user);
    const VisionSwitches glider = applyPreset(user, 1), vfr = applyPreset(user, 2), ifr = applyPreset(user, 3),
                         high = applyPreset(user, 4);
    for (const VisionSwitches* each : {&glider, &vfr, &ifr, &high}) {
        EXPECT_TRUE(each->terrain);
        EXPECT_FALSE(each->closed || each->heliports || each->standAlone || each->lowObstacles);
        EXPECT_EQ(each->glider, each == &glider);
        EXPECT_EQ(each->privateAirports, each == &glider);
        EXPECT_EQ(each->lowIFR, each == &ifr);
        EXPECT_EQ(each->highIFR, each == &high);
    }
}

TEST(VisionSettings, ReadsWhatCanBeDrawn) {
    IniFile ini;
    const VisionSettings standard = VisionSettings::read(ini, "P0");
    EXPECT_EQ(standard.sightMetres, 25000.0f);
    EXPECT_TRUE(standard.switches.lowIFR);
    EXPECT_EQ(standard.barColor, 0xff808080u);
    for (const auto& [key, value] : {std::pair("Sight", "-5"),
                                     {"planeWidth", "1e300"},
                                     {"pfdSize", "much"},
                                     {"speedRange", "0"},
                                     {"pfdVertRatio", "nan"},
                                     {"heliports", "1"}})
        ini.set("P0", key, value);
    const VisionSettings wild = VisionSettings::read(ini, "P0");
    EXPECT_GE(wild.sightMetres, 1000.0f);
    EXPECT_LE(wild.planeWidthMetres, 200.0);
    EXPECT_EQ(wild.barSize, standard.barSize);
    EXPECT_GE(wild.speedRangeKnots, 20);
    EXPECT_EQ(wild.barRatio, standard.barRatio);
    EXPECT_TRUE(wild.switches.heliports);
}

TEST(VelocityEstimator, FollowsTheTrackAndForgetsJumps) {
    VelocityEstimator velocity;
    const ChartPosition start(1.4, 42.3);
    const auto at = [&](double metres) { return Vector3df642ChartPosition(start, {metres * 0.6, 0.0, metres * 0.8}); };
    double time = 10.0;
    velocity.update(start, time);
    EXPECT_FALSE(velocity.get());
    for (int i = 1; i <= 50; ++i)
        velocity.update(at(i * 2.0), time += 0.04); // 50 m/s
    ASSERT_TRUE(velocity.get());
    EXPECT_NEAR(velocity.get()->X, 30.0, 0.1);
    EXPECT_NEAR(velocity.get()->Y, 40.0, 0.1);
    for (int i = 0; i < 10; ++i)
        velocity.update(at(100.0), time += 0.02); // frames without a new position
    EXPECT_TRUE(velocity.get());
    velocity.update({1.9, 42.3}, time += 0.04);
    EXPECT_FALSE(velocity.get()) << "41 km in an instant";
    velocity.update({std::nan(""), 42.3}, time += 0.04);
    velocity.update(start, time += 0.04);
    EXPECT_FALSE(velocity.get());
}

TEST(LabelPicker, TakesTheImportantAndTheNearWithoutOverlaps) {
    LabelPicker picker;
    const irr::core::rect<int> panel(0, 0, 300, 200);
    const auto box = [](int x, int y) { return irr::core::rect<int>(x, y, x + 60, y + 20); };
    picker.add({box(10, 10), 1, 5000.0, 1});
    picker.add({box(40, 20), 1, 3000.0, 2});  // over the first, and nearer
    picker.add({box(100, 10), 0, 100.0, 3});  // near, but less important
    picker.add({box(120, 15), 2, 9000.0, 4}); // over the third
    picker.add({box(280, 100), 9, 10.0, 5});  // hangs over the edge
    const auto ids = [](const std::vector<LabelPicker::Label>& labels) {
        std::vector<int> result;
        for (const LabelPicker::Label& label : labels)
            result.push_back(label.id);
        return result;
    };
    EXPECT_EQ(ids(picker.pick(10, panel)), (std::vector<int>{4, 2})) << "far ones first";
    // What was shown stays when another comes a little nearer.
    picker.clear();
    picker.add({box(10, 10), 1, 2000.0, 1});
    picker.add({box(40, 20), 1, 3000.0, 2});
    EXPECT_EQ(ids(picker.pick(10, panel)), (std::vector<int>{2}));
    picker.clear();
    EXPECT_TRUE(picker.pick(10, panel).empty());
}

} // namespace
} // namespace skyvane
