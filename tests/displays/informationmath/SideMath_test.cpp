// The arithmetic of the side view: its range, its axes, where the aircraft is on it, what it asks of the sensors.
#include "chart/geodesy/Angles.h"
#include "chart/geodesy/EarthConstants.h"
#include "core/ini/IniFile.h"
#include "displays/informationmath/RoutePlace.h"
#include "displays/informationmath/SideAxes.h"
#include "displays/informationmath/SideLayout.h"
#include "displays/informationmath/SideRange.h"
#include "displays/informationmath/SideReadings.h"
#include "displays/informationmath/SideScales.h"
#include "displays/informationmath/SideViewSettings.h"
#include "sensors/SensorFakes.h"
#include "sensors/records/Altitude_Data.h"
#include "sensors/records/Attitude_Data.h"
#include "sensors/records/GroundSpeed_Data.h"
#include "sensors/records/Position_Data.h"
#include "sensors/records/VerticalSpeed_Data.h"

#include <cmath>
#include <gtest/gtest.h>
#include <random>

namespace skyvane {
namespace {

TEST(SideRange, followsGroundFlightAndCourseAndOnlyRises) {
    SideRange range;
    range.update({100.0, 900.0, NAN, NAN});
    EXPECT_DOUBLE_EQ(range.getTop(), 1300.0);
    range.update({100.0, 900.0, 1250.0, 1100.0});
    EXPECT_DOUBLE_EQ(range.getTop(), 1400.0);
    range.update({100.0, 900.0, 1250.0, 500.0}); // lower again
    EXPECT_DOUBLE_EQ(range.getTop(), 1400.0);
    range.update({100.0, 900.0, 2100.0, NAN}); // a course out of the picture
    EXPECT_DOUBLE_EQ(range.getTop(), 2400.0);
    range.center();
    range.update({100.0, 900.0, NAN, NAN});
    EXPECT_DOUBLE_EQ(range.getTop(), 1300.0);
    SideRange flat; // the open sea, and nobody knows how high
    flat.update({0.0, 0.0, NAN, NAN});
    EXPECT_GE(flat.getTop(), 20.0);
    SideRange wild;
    wild.update({0.0, 0.0, INFINITY, 1e300});
    EXPECT_LE(wild.getTop(), 121920.0);
}

TEST(SideRange, isChosenWithinLimits) {
    SideRange range;
    const SideRange::Heights hills{100.0, 900.0, NAN, 500.0};
    range.update(hills);
    range.widen();
    range.update(hills);
    EXPECT_DOUBLE_EQ(range.getTop(), 1950.0);
    EXPECT_FALSE(range.isFollowing());
    range.narrow();
    range.narrow();
    range.update({100.0, 900.0, 5000.0, 5000.0}); // follows nothing
    EXPECT_NEAR(range.getTop(), 1950.0 / 2.25, 1e-9);
    for (int i = 0; i < 40; ++i) {
        range.narrow();
        range.update(hills);
        EXPECT_GE(range.getTop(), 120.0);
    }
    for (int i = 0; i < 40; ++i) {
        range.widen();
        range.update(hills);
        EXPECT_LE(range.getTop(), 121920.0);
    }
    range.choose(NAN);
    EXPECT_GT(range.getTop(), 0.0);
    range.choose(-400.0); // the Dead Sea: no factor brings a top below zero up
    range.update({-430.0, -300.0, NAN, NAN});
    EXPECT_DOUBLE_EQ(range.getTop(), -400.0);
    range.narrow();
    range.narrow();
    range.choose(0.0);
    range.update({50.0, 60.0, NAN, NAN});
    EXPECT_DOUBLE_EQ(range.getTop(), 70.0);
}

TEST(SidePinch, dividesTheTopByHowFarTheFingersWentApart) {
    SidePinch pinch;
    pinch.down(7, 100.0, 100.0, 3000.0);
    EXPECT_FALSE(pinch.moved(7, 120.0, 100.0)) << "one finger";
    pinch.down(9, 220.0, 100.0, 3000.0);
    EXPECT_TRUE(pinch.moved(9, 320.0, 100.0));
    EXPECT_DOUBLE_EQ(pinch.getTop(), 1500.0); // startTop / ((200 - 100) / 100 + 1)
    EXPECT_TRUE(pinch.moved(9, 170.0, 100.0));
    EXPECT_DOUBLE_EQ(pinch.getTop(), 6000.0);
    EXPECT_FALSE(pinch.moved(9, 120.0, 100.0)) << "on top of each other";
    pinch.down(11, 5.0, 5.0, 1.0); // a third finger
    EXPECT_FALSE(pinch.moved(11, 6.0, 5.0));
    pinch.up(7);
    EXPECT_FALSE(pinch.moved(9, 400.0, 100.0));
    SidePinch same;
    same.down(1, 10.0, 10.0, 500.0);
    same.down(2, 10.0, 10.0, 500.0);
    EXPECT_FALSE(same.moved(2, 90.0, 10.0));
}

TEST(SideAxes, placePointsAndAltitudes) {
    SideAxes axes{{100.0, 50.0, 740.0, 250.0}, 512, 0.0, 512.0, 100.0, 200.0, 1200.0};
    for (const double index : {0.0, 17.0, 511.0})
        for (const double altitude : {200.0, 700.0, 1500.0}) {
            const ShapePoint place = axes.toScreen(index, altitude);
            EXPECT_NEAR(place.X - 100.0, index / 512.0 * 640.0, 1e-9);
            EXPECT_NEAR(place.Y - 50.0, 200.0 - (altitude - 200.0) * 200.0 / (1200.0 - 200.0), 1e-9);
            EXPECT_NEAR(axes.indexAt(place.X), index, 1e-9);
        }
    EXPECT_NEAR(axes.getPixelsPerMetre(), 640.0 / 51200.0, 1e-12);
}

TEST(SideAxes, lookAheadMovesOnInSteps) {
    // 1000 points of 100 m, 10 km shown: the aircraft stays between a tenth and two tenths of the picture.
    double last = 0.0;
    int steps = 0;
    for (double own = 0.0; own < 999.0; own += 0.5) {
        const SideWindow window = lookAhead(1000, 100.0, own, 10000.0);
        EXPECT_DOUBLE_EQ(window.shown, 100.0);
        EXPECT_GE(window.first, last);
        EXPECT_LE(window.first, 900.0);
        if (window.first > 0.0 && window.first < 900.0) {
            EXPECT_GE(own - window.first, 10.0 - 1e-9);
            EXPECT_LE(own - window.first, 20.0 + 1e-9);
        }
        steps += window.first != last;
        last = window.first;
    }
    EXPECT_EQ(steps, 90);
    EXPECT_DOUBLE_EQ(lookAhead(80, 100.0, 40.0, 10000.0).shown, 80.0) << "shorter than that";
    EXPECT_DOUBLE_EQ(lookAhead(80, 0.0, 40.0, 10000.0).first, 0.0);
    EXPECT_DOUBLE_EQ(lookAhead(1000, 100.0, NAN, 10000.0).first, 0.0);
}

TEST(SideScales, stepIsRoundAndWideEnough) {
    std::mt19937 random(3);
    std::uniform_real_distribution<double> exponent(-6.0, 6.0);
    for (int i = 0; i < 2000; ++i) {
        const double units = std::pow(10.0, exponent(random));
        const double step = chooseScaleStep(units, 40.0, 1e-9);
        EXPECT_GE(step, units * 40.0 * 0.999999);
        EXPECT_LE(step, units * 40.0 * 2.500001);
        const double first = step / std::pow(10.0, std::floor(std::log10(step) + 1e-9));
        EXPECT_TRUE(std::fabs(first - 1) < 1e-6 || std::fabs(first - 2) < 1e-6 || std::fabs(first - 5) < 1e-6) << step;
    }
    EXPECT_EQ(chooseScaleStep(0.001, 10.0, 10.0), 10.0);
    for (const double wrong : {0.0, -1.0, double(NAN), double(INFINITY)})
        EXPECT_EQ(chooseScaleStep(wrong, 10.0, 10.0), 0.0);
}

using Row = std::vector<ChartPosition>;

/// The nearest of many places along the row, by haversine.
double nearestByHand(const Row& row, const ChartPosition& own) {
    double least = INFINITY;
    for (size_t i = 1; i < row.size(); ++i)
        for (int part = 0; part <= 200; ++part) {
            const double share = part / 200.0, rad = M_PI / 180.0;
            const double lon =
                row[i - 1].longitude + Angle180(row[i].longitude - row[i - 1].longitude) * share - own.longitude;
            const double lat = row[i - 1].latitude + (row[i].latitude - row[i - 1].latitude) * share;
            const double h =
                std::pow(std::sin((lat - own.latitude) * rad / 2.0), 2) +
                std::cos(lat * rad) * std::cos(own.latitude * rad) * std::pow(std::sin(lon * rad / 2.0), 2);
            least = std::min(least, 2.0 * EarthRadiusMetres * std::asin(std::sqrt(h)));
        }
    return least;
}

TEST(RoutePlace, isTheNearest) {
    std::mt19937 random(11);
    std::uniform_real_distribution<double> degrees(-0.3, 0.3);
    for (int run = 0; run < 60; ++run) {
        const double west = run % 3 == 0 ? 179.9 : -28.0, south = run % 2 == 0 ? 42.0 : -60.0;
        Row row;
        for (int i = 0; i < 8; ++i)
            row.emplace_back(Angle180(west + degrees(random)), south + degrees(random));
        const ChartPosition own(Angle180(west + degrees(random)), south + degrees(random));
        RoutePlaceFinder finder;
        const auto place = finder.find(row, own);
        ASSERT_TRUE(place);
        // The stretch of the row that the place lies on, and what is as good.
        EXPECT_NEAR(place->distanceMetres, nearestByHand(row, own), 160.0 + 0.004 * place->distanceMetres);
        EXPECT_GE(place->index, 0.0);
        EXPECT_LE(place->index, 7.0);
    }
}

TEST(RoutePlace, followsARowThatMeetsItself) {
    // Twice round a square of some 11 km, as a holding is flown.
    Row row;
    for (int turn = 0; turn < 2; ++turn)
        for (int i = 0; i < 40; ++i) {
            const double along = (i % 10) / 100.0;
            const int side = i / 10;
            row.emplace_back(side == 0   ? along
                             : side == 1 ? 0.1
                             : side == 2 ? 0.1 - along
                                         : 0.0,
                             side == 0   ? 0.0
                             : side == 1 ? along
                             : side == 2 ? 0.1
                                         : 0.1 - along);
        }
    RoutePlaceFinder finder;
    EXPECT_LT(finder.find(row, row[5])->index, 6.0) << "at first the beginning";
    double last = 0.0;
    for (size_t i = 0; i < row.size(); ++i) {
        const auto place = finder.find(row, row[i]);
        EXPECT_NEAR(place->index, static_cast<double>(i), 1.2);
        EXPECT_GE(place->index, last - 0.3);
        last = place->index;
    }
    finder.reset();
    EXPECT_LT(finder.find(row, row[45])->index, 6.0);
}

TEST(RoutePlace, isNowhereWithoutARowOrAPlace) {
    RoutePlaceFinder finder;
    EXPECT_FALSE(finder.find({}, {1.0, 2.0}));
    EXPECT_FALSE(finder.find({{1.0, 2.0}}, {1.0, 2.0}));
    for (const ChartPosition& own : {ChartPosition(NAN, 2.0), ChartPosition(1.0, INFINITY), ChartPosition(1.0, 95.0)})
        EXPECT_FALSE(finder.find({{1.0, 2.0}, {1.1, 2.0}}, own));
    EXPECT_FALSE(finder.find({{NAN, NAN}, {NAN, NAN}}, {1.0, 2.0}));
    const auto same = finder.find({{1.0, 2.0}, {1.0, 2.0}}, {1.0, 2.0});
    ASSERT_TRUE(same);
    EXPECT_LT(same->distanceMetres, 1.0);
}

TEST(SideReadings, believeTheSensorsAsFarAsTheyDo) {
    ManagerRig rig;
    rig.load("SensorCount=2\nD1=1\nD4=1\nD5=1\nD6=1\nD7=1\n[S1]\nFactoryIndex=0\n");
    FakeSensor& sensor = *rig.sensor(1);
    SideReadings nothing = readSide(rig.manager);
    EXPECT_FALSE(nothing.position || nothing.altitudeMetres || nothing.getSlope());
    EXPECT_TRUE(nothing.isDoubtful);
    EXPECT_EQ(nothing.getFlightPathDegrees(), 0.0);
    auto* place = sensor.put<Position_Data>(ISensorData::Position);
    place->longitude = 8.0;
    place->latitude = 47.0;
    auto* altitude = sensor.put<Altitude_Data>(ISensorData::Altitude, 1234.0, 0u);
    auto* speed = sensor.put<GroundSpeed_Data>(ISensorData::GroundSpeed, 100.0, 0u);
    auto* climb = sensor.put<VerticalSpeed_Data>(ISensorData::VerticalSpeed, -5.0, 0u);
    const double rad = 10.0 * M_PI / 180.0;
    auto* attitude = sensor.put<Attitude_Data>(ISensorData::Attitude);
    attitude->matrix = Matrix3x3({0.0, std::cos(rad), -std::sin(rad)}, {0.0, std::sin(rad), std::cos(rad)});
    SideReadings all = readSide(rig.manager);
    ASSERT_TRUE(all.position && all.altitudeMetres && all.getSlope());
    EXPECT_EQ(all.position->latitude, 47.0);
    EXPECT_EQ(*all.altitudeMetres, 1234.0);
    EXPECT_FALSE(all.isDoubtful);
    EXPECT_NEAR(*all.getSlope(), -5.0 / 51.4444444, 1e-9);
    EXPECT_NEAR(all.getFlightPathDegrees(), -5.551, 1e-3);
    speed->value = 3.0; // hardly moves: the nose tells
    EXPECT_NEAR(readSide(rig.manager).getFlightPathDegrees(), 10.0, 1e-3);
    speed->value = 100.0;
    climb->value = NAN;
    EXPECT_FALSE(readSide(rig.manager).getSlope());
    altitude->value = INFINITY;
    place->latitude = 91.0;
    EXPECT_FALSE(readSide(rig.manager).position || readSide(rig.manager).altitudeMetres);
    altitude->value = 500.0;
    place->latitude = 47.0;
    sensor.level = ISensor::MAYBE_WRONG;
    EXPECT_TRUE(readSide(rig.manager).isDoubtful);
    EXPECT_TRUE(readSide(rig.manager).position);
    sensor.level = ISensor::WRONG;
    EXPECT_FALSE(readSide(rig.manager).position || readSide(rig.manager).altitudeMetres ||
                 readSide(rig.manager).pitchDegrees);
}

TEST(SideViewSettings, keepTheirDefaultForNonsense) {
    const auto read = [](const char* text) {
        IniFile ini;
        ini.set("P1", "maxDist", text);
        return SideViewSettings::read(ini, "P1").maxDistMetres;
    };
    IniFile empty;
    EXPECT_EQ(SideViewSettings::read(empty, "P1").maxDistMetres, 10000000.0);
    EXPECT_FALSE(empty.isSectionAvailable("P1"));
    EXPECT_EQ(read("25000.5"), 25000.5);
    EXPECT_EQ(read("0"), 0.0);
    for (const char* nonsense : {"", "far", "-5", "nan", "1e999"})
        EXPECT_EQ(read(nonsense), 10000000.0) << nonsense;
}

TEST(SideLayout, buttonsKeepWithinTheirPanelAndApart) {
    for (const irr::core::rect<int>& panel :
         {irr::core::rect<int>(0, 0, 1280, 673), irr::core::rect<int>(0, 504, 640, 672),
          irr::core::rect<int>(160, 500, 800, 720), irr::core::rect<int>(10, 10, 200, 60),
          irr::core::rect<int>(5, 5, 9, 8)}) {
        const SideButtonPlaces places = placeSideButtons(panel, 121, 47);
        for (size_t i = 0; i < places.buttons.size(); ++i) {
            const auto& place = places.buttons[i];
            EXPECT_GE(place.UpperLeftCorner.X, panel.UpperLeftCorner.X - 60);
            EXPECT_LE(place.LowerRightCorner.X, panel.LowerRightCorner.X);
            EXPECT_LE(place.getHeight(), 47);
            if (i > 0) {
                EXPECT_LE(places.buttons[i - 1].LowerRightCorner.X, place.UpperLeftCorner.X);
            }
            if (panel.getWidth() >= 600) { // a finger hits each
                EXPECT_GE(place.getWidth(), 47);
                EXPECT_GE(place.getHeight(), 47);
                EXPECT_GE(place.UpperLeftCorner.X, panel.UpperLeftCorner.X);
            }
        }
        EXPECT_EQ(places.alone.LowerRightCorner.X, places.buttons.back().LowerRightCorner.X);
        EXPECT_EQ(places.alone.getWidth(), places.buttons.front().getWidth());
        EXPECT_EQ(places.mayStay, panel.getHeight() >= 6 * 47);
    }
}

} // namespace
} // namespace skyvane
