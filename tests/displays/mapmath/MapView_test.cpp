#include "displays/mapmath/MapView.h"

#include "chart/geodesy/Angles.h"
#include "chart/geodesy/GreatCircle.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <random>

using namespace skyvane;
using Point = MapView::Point;

namespace {

constexpr int width = 1280, height = 673;
constexpr double noNumber = std::numeric_limits<double>::quiet_NaN();

MapView makeView(const ChartPosition& place, double heading = 0.0, MapMode mode = MapMode::NorthUp) {
    MapView view;
    view.setPanel({width, height, 1280, 720, 47});
    view.setMode(mode);
    view.setAircraft(place, heading);
    view.calculateResolution();
    view.calculateViewPort();
    return view;
}

/// The slow way: the great circle's distance and bearing from what is at the pivot, turned by the heading.
Point twin(const MapView& view, const ChartPosition& place) {
    const double angle = (calcBearing2(view.getAircraft(), place) - view.getTopTrack()) * M_PI / 180.0;
    const double pixels = calcDistance2(view.getAircraft(), place) / view.getMetresPerPixel();
    return view.getPivot() + Point(pixels * std::sin(angle), -pixels * std::cos(angle));
}

void expectNear(const Point& wanted, const Point& point, double tolerance, const char* what) {
    EXPECT_NEAR(wanted.X, point.X, tolerance) << what;
    EXPECT_NEAR(wanted.Y, point.Y, tolerance) << what;
}

} // namespace

TEST(MapView, BeginsWithTheAircraftInTheMiddleAndTheScreenSoManyMetresHigh) {
    const MapView view = makeView({1.5, 42.5});
    expectNear({640, 336.5}, view.toPanel({1.5, 42.5}), 1e-9, "the aircraft");
    EXPECT_NEAR(83396.20525904474 / 720, view.getMetresPerPixel(), 1e-9);
    EXPECT_NEAR(view.getLatitudePerPixel() / view.getLongitudePerPixel(), std::cos(42.5 * M_PI / 180.0), 1e-6);
}

TEST(MapView, PlacesLieWhereDistanceAndBearingPutThem) {
    std::mt19937 random(20);
    std::uniform_real_distribution<double> longitude(-180, 180), latitude(-70, 70), heading(0, 360), near(-0.2, 0.2);
    for (int i = 0; i < 300; ++i) {
        const ChartPosition aircraft(longitude(random), latitude(random));
        const MapMode mode = i % 2 ? MapMode::TrackUp : MapMode::NorthUp;
        const MapView view = makeView(aircraft, heading(random), mode);
        const ChartPosition place(Angle180(aircraft.longitude + near(random)), aircraft.latitude + near(random));
        const Point point = view.toPanel(place);
        // The map is flat: its error grows with the distance and the latitude.
        expectNear(twin(view, place), point, 0.01 * point.getDistanceFrom(view.getPivot()) + 0.2, "a place");
        const ChartPosition back = view.toChart(point);
        EXPECT_NEAR(0.0, Angle180(back.longitude - place.longitude), 1e-9);
        EXPECT_NEAR(place.latitude, back.latitude, 1e-9);
    }
}

TEST(MapView, TheTrackPointsUpFromThreeQuartersDown) {
    const MapView view = makeView({0.0, 0.0}, 90.0, MapMode::TrackUp);
    expectNear({640, 0.75 * height}, view.toPanel({0.0, 0.0}), 1e-9, "the aircraft");
    const Point east = view.toPanel({0.1, 0.0}), north = view.toPanel({0.0, 0.1});
    expectNear({640, 0.75 * height - 0.1 / view.getLongitudePerPixel()}, east, 1e-6, "ahead");
    EXPECT_LT(north.X, 640.0) << "north lies to the left";
    EXPECT_NEAR(0.75 * height, north.Y, 1e-6);
}

TEST(MapView, ThePolesStopItAndTheAntimeridianDoesNot) {
    MapView view = makeView({179.99, 10.0});
    EXPECT_NEAR(640 + 0.02 / view.getLongitudePerPixel(), view.toPanel({-179.99, 10.0}).X, 1e-6);
    for (const double latitude : {89.95, -89.95, 90.0, -90.0, 500.0}) {
        view.setAircraft({20.0, latitude}, 0.0);
        view.calculateResolution();
        view.calculateViewPort();
        EXPECT_LE(view.getBox().north, 89.0 + 1e-9) << latitude;
        EXPECT_GE(view.getBox().south, -89.0 - 1e-9) << latitude;
        EXPECT_LE(view.getBox().getWidth(), 180.0 + 1e-9);
    }
    view = makeView({0.0, 88.0});
    view.leaveFollowing();
    view.setPan({0.0, 40000.0}); // far to the north
    view.commitPan();
    view.calculateViewPort();
    EXPECT_LE(view.getBox().north, 89.0 + 1e-9);
    view.setPan({0.0, -10.0});
    view.commitPan();
    view.calculateViewPort();
    EXPECT_NEAR(89.0 - 5.0 * view.getLatitudePerPixel(), view.getBox().north, 1e-9) << "the excess isn't kept";
}

TEST(MapView, WhatIsNoNumberChangesNothing) {
    MapView view = makeView({1.5, 42.5}, 45.0);
    view.setAircraft({noNumber, 3.0}, noNumber);
    view.setAircraft({3.0, std::numeric_limits<double>::infinity()}, 45.0);
    view.calculateViewPort();
    EXPECT_EQ(1.5, view.getAircraft().longitude);
    EXPECT_EQ(45.0, view.getHeading());
    for (const double zoom : {noNumber, 0.0, -1.0, std::numeric_limits<double>::infinity()})
        EXPECT_FALSE(view.setZoom(zoom));
    EXPECT_EQ(-1000000, toPixel(view.toPanel({noNumber, 0.0})).X);
    EXPECT_EQ(1000000, toPixel(Point(1e300, 0.0)).X);
}

TEST(MapView, ZoomsOutOfRangeAreUndone) {
    MapView view = makeView({1.5, 42.5});
    double zoom = view.getZoom();
    int steps = 0;
    while (view.setZoom(zoom / 1.5) && steps < 100) {
        zoom /= 1.5;
        ++steps;
    }
    EXPECT_EQ(zoom, view.getZoom());
    view.calculateResolution();
    EXPECT_LE(view.getViewArea(), 200.0);
    EXPECT_GT(view.getViewArea(), 200.0 / 1.5 / 1.5 - 1.0);
    while (view.setZoom(zoom * 1.5) && steps < 200) {
        zoom *= 1.5;
        ++steps;
    }
    view.calculateResolution();
    EXPECT_GE(view.getViewArea(), 0.00014);
    EXPECT_LT(view.getViewArea(), 0.00014 * 1.5 * 1.5 * 1.01);
}

TEST(MapView, OutsideOfTheRangeTheWayBackIsOpen) {
    MapView view = makeView({0.0, 0.0});
    while (view.setZoom(view.getZoom() / 1.1)) {
    }
    view.setAircraft({0.0, 85.0}, 0.0); // a degree of longitude is shorter here, so that the same pixels show more
    const double zoom = view.getZoom();
    EXPECT_FALSE(view.setZoom(zoom / 1.5));
    EXPECT_TRUE(view.setZoom(zoom * 1.5));
}

TEST(MapView, TheAreaIsThatOfTheFullScreen) {
    MapView full, half;
    full.setPanel({1280, 720, 1280, 720, 47});
    half.setPanel({640, 720, 1280, 720, 47});
    for (MapView* view : {&full, &half}) {
        view->setAircraft({0.0, 50.0}, 0.0);
        view->calculateResolution();
    }
    EXPECT_NEAR(full.getViewArea(), half.getViewArea(), 1e-9);
}

TEST(MapView, ItFollowsDragsMarksAndComesBack) {
    MapView view = makeView({1.5, 42.5});
    view.leaveFollowing();
    EXPECT_EQ(MapMode::Marker, view.getMode());
    view.setAircraft({1.6, 42.5}, 0.0);
    view.calculateViewPort();
    expectNear({640, 336.5}, view.toPanel({1.5, 42.5}), 1e-6, "the view stays");
    view.setMode(MapMode::Dragging);
    view.setPan({100.0, 0.0});
    view.calculateViewPort();
    expectNear({690, 336.5}, view.toPanel({1.5, 42.5}), 1e-6, "half the finger's way");
    view.commitPan();
    view.calculateViewPort();
    expectNear({690, 336.5}, view.toPanel({1.5, 42.5}), 1e-6, "committed");
    view.centreOn({1.7, 42.3});
    view.calculateViewPort();
    expectNear({640, 336.5}, view.toPanel({1.7, 42.3}), 1e-6, "a tap");
    view.follow();
    view.calculateViewPort();
    EXPECT_EQ(MapMode::NorthUp, view.getMode());
    expectNear({640, 336.5}, view.toPanel({1.6, 42.5}), 1e-6, "the aircraft");
    view.toggleOrientation();
    EXPECT_EQ(MapMode::TrackUp, view.getMode());
    view.leaveFollowing();
    view.follow();
    EXPECT_EQ(MapMode::TrackUp, view.getMode());
}

TEST(MapView, ItsReachHoldsAllThatThePanelCanShow) {
    std::mt19937 random(7);
    std::uniform_real_distribution<double> heading(0, 360), x(0, width), y(0, height);
    for (const MapMode mode : {MapMode::NorthUp, MapMode::TrackUp}) {
        MapView view = makeView({179.9, -60.0}, 0.0, mode);
        for (int i = 0; i < 500; ++i) {
            view.setAircraft({179.9, -60.0}, heading(random));
            view.calculateViewPort();
            EXPECT_TRUE(view.getReach(1.0).contains(view.toChart({x(random), y(random)})));
        }
    }
}

TEST(MapBox, ItCoversAndContainsAcrossTheAntimeridian) {
    const MapBox box{170.0, -10.0, 200.0, 10.0};
    EXPECT_TRUE(box.contains({-170.0, 0.0}));
    EXPECT_TRUE(box.contains({190.0, 0.0}));
    EXPECT_FALSE(box.contains({160.0, 0.0}));
    EXPECT_TRUE(box.covers({-185.0, -5.0, -165.0, 5.0}));
    EXPECT_FALSE(box.covers({-185.0, -5.0, -155.0, 5.0}));
    EXPECT_NEAR(200.0, box.getSE().longitude, 1e-12);
    const MapBox all{-200.0, -10.0, 200.0, 10.0};
    EXPECT_EQ(0.0, all.getNW().longitude);
    EXPECT_EQ(360.0, all.getSE().longitude);
}
