// The smaller pieces of the map's arithmetic: scale, settings, traffic, tint, ids.
#include "chart/geodesy/Barometry.h"
#include "core/ini/IniFile.h"
#include "displays/mapmath/AltitudeTint.h"
#include "displays/mapmath/IdSet.h"
#include "displays/mapmath/MapSettings.h"
#include "displays/mapmath/ScaleBar.h"
#include "displays/mapmath/TrafficPicture.h"

#include <gtest/gtest.h>
#include <limits>
#include <random>
#include <set>

using namespace skyvane;

namespace {

constexpr double noNumber = std::numeric_limits<double>::quiet_NaN();

TrafficElement target(int feet) {
    TrafficElement element;
    element.longitude = 1.5;
    element.latitude = 42.5;
    element.altitude = feet;
    return element;
}

} // namespace

TEST(ScaleBar, TakesTheNearestValueOfTheTable) {
    EXPECT_EQ("5 NM", chooseScaleBar(80, 115.8, false).text);
    EXPECT_NEAR(5 * 1852 / 115.8, chooseScaleBar(80, 115.8, false).pixels, 1e-9);
    EXPECT_EQ("10 km", chooseScaleBar(80, 115.8, true).text);
    EXPECT_EQ("0.1 NM", chooseScaleBar(80, 0.01, false).text);
    EXPECT_EQ("0.5 km", chooseScaleBar(100, 4.5, true).text);
    EXPECT_EQ("1.0 NM", chooseScaleBar(100, 18.0, false).text);
    EXPECT_EQ("1000 NM", chooseScaleBar(100, 1e9, false).text);
    EXPECT_EQ("0.1 NM", chooseScaleBar(100, noNumber, false).text);
    EXPECT_EQ("12.3 NM", distanceText(12.34 * 1852, false));
    EXPECT_EQ("0.1 KM", distanceText(70, true));
    EXPECT_EQ("---", distanceText(noNumber, true));
}

TEST(MapSettings, PresetsAreThoseOfTheTable) {
    MapSwitches user;
    user.lowObstacles = user.heliports = user.closed = user.marks = true;
    user.descriptions = user.terrainEnable = false;
    EXPECT_FALSE(applyPreset(user, 0).descriptions) << "the pilot's own";
    EXPECT_TRUE(applyPreset(user, 0).heliports);
    const MapSwitches glider = applyPreset(user, 1), vfr = applyPreset(user, 2), ifr = applyPreset(user, 3),
                      high = applyPreset(user, 4);
    for (const MapSwitches& preset : {glider, vfr, ifr, high}) {
        EXPECT_TRUE(preset.terrainEnable && preset.descriptions && preset.countryborders && preset.taxiways);
        EXPECT_FALSE(preset.lowObstacles || preset.heliports || preset.closed || preset.marks || preset.irrelevant);
        EXPECT_TRUE(preset.succeedingProcedures);
    }
    EXPECT_TRUE(glider.privateAirports && glider.glider && glider.airspaces && glider.water && !glider.lowIFR);
    EXPECT_TRUE(vfr.airspaces && vfr.highways && vfr.railways && !vfr.privateAirports && !vfr.airways);
    EXPECT_TRUE(ifr.lowIFR && ifr.airways && !ifr.highIFR && !ifr.airspaces && !ifr.water);
    EXPECT_TRUE(high.highIFR && high.airways && !high.lowIFR && !high.highways);
    EXPECT_TRUE(applyPreset(user, 77).heliports && applyPreset(user, -1).heliports);
}

TEST(MapSettings, ReadsWhatIsThereAndLimitsTheRest) {
    IniFile ini;
    const MapSettings standard = MapSettings::read(ini, "P3");
    EXPECT_EQ(0.05, standard.mapElementSize);
    EXPECT_EQ(MapBackdrop::None, standard.bgType);
    EXPECT_TRUE(standard.useRTT && standard.drawNose && standard.switches.airspaces);
    EXPECT_FALSE(ini.isSectionAvailable("P3")) << "reading makes no section";
    ini.setFromString("[P3]\nmapElementSize = 1e99\nbgType = high\\ ifr\nnoseLength = -4\ntranspval = 4000\n"
                      "airspaces = 0\nwater = rubbish\nmaxElementDrawArea = nan\nairspacesBelow = 4500\n");
    const MapSettings read = MapSettings::read(ini, "P3");
    EXPECT_EQ(1.0, read.mapElementSize);
    EXPECT_EQ(MapBackdrop::HighIfr, read.bgType);
    EXPECT_EQ(0, read.noseLength);
    EXPECT_EQ(255, read.transpval);
    EXPECT_FALSE(read.switches.airspaces);
    EXPECT_TRUE(read.switches.water);
    EXPECT_EQ(10000.0f, read.maxElementDrawArea);
    MapSettings changed = read;
    changed.switches.heliports = true;
    changed.bgType = MapBackdrop::None;
    changed.writeOptions(ini, "P3");
    EXPECT_EQ("none", ini.get("P3", "bgType"));
    EXPECT_EQ("1e99", ini.get("P3", "mapElementSize")) << "what the options don't show stays";
    EXPECT_TRUE(MapSettings::read(ini, "P3").switches.heliports);
    EXPECT_FALSE(MapSettings::read(ini, "P3").switches.airspaces);
}

TEST(TrafficPicture, TellsTheDifferenceInTens) {
    const TrafficSituation situation{convertPressureAltitude2MSL(1000.0, 1013.25), 1013.25, 0, false};
    EXPECT_EQ("+50", describeTraffic(target(3781), situation)->differenceText);
    EXPECT_EQ("-28", describeTraffic(target(3000), situation)->differenceText);
    EXPECT_EQ("0", describeTraffic(target(3281), situation)->differenceText);
    TrafficSituation metric = situation;
    metric.metric = true;
    EXPECT_EQ("+15", describeTraffic(target(3781), metric)->differenceText);
    TrafficSituation filtered = situation;
    filtered.filterFeet = 500;
    EXPECT_TRUE(describeTraffic(target(3770), filtered));
    EXPECT_FALSE(describeTraffic(target(3790), filtered));
    EXPECT_TRUE(describeTraffic(target(-100000), filtered)) << "who doesn't tell his altitude may be at ours";
    EXPECT_EQ("---", describeTraffic(target(-100000), filtered)->differenceText);
    TrafficSituation unknown = filtered;
    unknown.ownAltitudeMetres = noNumber;
    EXPECT_EQ("---", describeTraffic(target(20000), unknown)->differenceText) << "nobody knows our own";
}

TEST(TrafficPicture, WildValuesAreNotDrawn) {
    const TrafficSituation situation{1000.0, 1013.25, 0, false};
    for (const double wild : {noNumber, 1e300, -std::numeric_limits<double>::infinity(), -360.0}) {
        TrafficElement element = target(3000);
        element.longitude = wild;
        EXPECT_FALSE(describeTraffic(element, situation)) << wild;
        element = target(3000);
        element.latitude = wild;
        EXPECT_FALSE(describeTraffic(element, situation)) << wild;
    }
    TrafficElement element = target(std::numeric_limits<int>::max());
    element.climbRate = std::numeric_limits<int>::min() + 1;
    element.track = std::numeric_limits<float>::quiet_NaN();
    element.name = std::string("AB\0\x01\xff"
                               "C  ",
                               8);
    const auto picture = describeTraffic(element, situation);
    ASSERT_TRUE(picture);
    EXPECT_EQ("---", picture->differenceText);
    EXPECT_EQ(0, picture->trend);
    EXPECT_FALSE(picture->trackDegrees);
    EXPECT_EQ("ABC", picture->name);
    element.track = -90.0f;
    element.climbRate = -600;
    EXPECT_EQ(270.0, *describeTraffic(element, situation)->trackDegrees);
    EXPECT_EQ(-1, describeTraffic(element, situation)->trend);
    EXPECT_EQ("---", describeTraffic(target(3000), {noNumber, noNumber, 0, false})->differenceText);
}

TEST(AltitudeTint, GoesFromRedByYellowToGreen) {
    EXPECT_EQ(0xffff0000u, altitudeTint(-5000.0));
    EXPECT_EQ(0xffff0000u, altitudeTint(46.0));
    EXPECT_EQ(0xffffff00u, altitudeTint(46.0 + 91.5));
    EXPECT_EQ(0xff00ff00u, altitudeTint(46.0 + 183.0));
    EXPECT_EQ(0xff00ff00u, altitudeTint(1e9));
    EXPECT_EQ(0xffff0000u, altitudeTint(noNumber));
}

TEST(IdSet, IsASet) {
    std::mt19937 random(3);
    std::uniform_int_distribution<int> number(-3000, 3000);
    IdSet set;
    for (int round = 0; round < 3; ++round) {
        std::set<int> twin;
        set.clear();
        EXPECT_FALSE(set.contains(5));
        for (int i = 0; i < 5000; ++i) {
            const int id = i % 7 == 0 ? number(random) * 262144 : number(random);
            ASSERT_EQ(twin.insert(id).second, set.insert(id));
            ASSERT_TRUE(set.contains(id));
        }
        EXPECT_EQ(twin.size(), set.getSize());
    }
}
