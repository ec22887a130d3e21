#include "displays/mapmath/MapGestures.h"

#include <cmath>
#include <gtest/gtest.h>

using namespace skyvane;
using Point = MapGestures::Point;

namespace {

class MapGesturesTest : public testing::Test {
protected:
    MapGesturesTest() {
        MapGestures::Places places;
        places.size = Point(1000, 600);
        places.compass = MapGestures::Rect(0, 540, 60, 600);
        places.zoomBar = MapGestures::Rect(920, 0, 1000, 600);
        gestures.setPlaces(places);
    }
    MapGestures gestures;
};

} // namespace

TEST_F(MapGesturesTest, ATapIsShortAndNear) {
    EXPECT_EQ(MapGesture::LeaveFollowing, gestures.press({500, 300}, 1000, 1.0).kind);
    MapGesture tap = gestures.release({506, 305}, 1900); // within 9 pixels
    EXPECT_EQ(MapGesture::Tap, tap.kind);
    EXPECT_EQ(Point(500, 300), tap.point);
    gestures.press({500, 300}, 1000, 1.0);
    EXPECT_EQ(MapGesture::DragEnd, gestures.release({510, 300}, 1100).kind) << "too far";
    gestures.press({500, 300}, 1000, 1.0);
    EXPECT_EQ(MapGesture::DragEnd, gestures.release({500, 300}, 2001).kind) << "too long";
    gestures.press({500, 300}, 0xffffff00u, 1.0);
    EXPECT_EQ(MapGesture::Tap, gestures.release({500, 300}, 20).kind) << "the clock wrapped";
}

TEST_F(MapGesturesTest, ADragTellsHowFarTheFingerIs) {
    gestures.press({500, 300}, 0, 1.0);
    EXPECT_EQ(MapGesture::Consumed, gestures.move({500, 300}).kind);
    const MapGesture drag = gestures.move({520, 250});
    EXPECT_EQ(MapGesture::Drag, drag.kind);
    EXPECT_EQ(Point(20, -50), drag.point);
    EXPECT_EQ(MapGesture::DragEnd, gestures.release({1500, 300}, 100).kind) << "also outside of the panel";
    EXPECT_EQ(MapGesture::NotMine, gestures.move({520, 250}).kind);
    EXPECT_EQ(MapGesture::NotMine, gestures.release({520, 250}, 200).kind);
}

TEST_F(MapGesturesTest, WhatIsOutsideIsNotTheMaps) {
    EXPECT_EQ(MapGesture::NotMine, gestures.press({1500, 300}, 0, 1.0).kind);
    EXPECT_EQ(MapGesture::NotMine, gestures.release({500, 300}, 10).kind);
    EXPECT_EQ(MapGesture::NotMine, gestures.fingerDown(1, {500, 700}, 1.0).kind);
}

TEST_F(MapGesturesTest, TheCompassWantsItsReleaseToo) {
    EXPECT_EQ(MapGesture::Consumed, gestures.press({30, 570}, 0, 1.0).kind);
    EXPECT_TRUE(gestures.isCompassPressed());
    EXPECT_EQ(MapGesture::ToggleOrientation, gestures.release({40, 580}, 10).kind);
    gestures.press({30, 570}, 0, 1.0);
    EXPECT_EQ(MapGesture::Consumed, gestures.release({400, 580}, 10).kind);
}

TEST_F(MapGesturesTest, TheZoomBarIsExponentialAndStepsByOnePercent) {
    gestures.press({950, 300}, 0, 2.0);
    EXPECT_TRUE(gestures.isZoomBarUsed());
    EXPECT_EQ(MapGesture::Consumed, gestures.move({950, 301}).kind) << "a third of a percent";
    const MapGesture zoom = gestures.move({950, 0});
    EXPECT_EQ(MapGesture::Zoom, zoom.kind);
    EXPECT_NEAR(2.0 * std::exp(2.0149030205422647 / 2), zoom.zoom, 1e-9);
    EXPECT_NEAR(2.0 * std::exp(-2.0149030205422647 / 2), gestures.move({950, 600}).zoom, 1e-9);
    EXPECT_EQ(MapGesture::ZoomEnd, gestures.release({950, 600}, 10).kind);
    EXPECT_NEAR(2.25, MapGestures::stepZoom(1.0, 2.0), 1e-12);
    EXPECT_TRUE(std::isfinite(MapGestures::stepZoom(1.0, 1e9)));
}

TEST_F(MapGesturesTest, APinchGoesHalfAsFarAsTheFingers) {
    gestures.press({400, 300}, 0, 1.0);
    EXPECT_EQ(MapGesture::NotMine, gestures.fingerDown(7, {400, 300}, 1.0).kind);
    EXPECT_EQ(MapGesture::PinchStart, gestures.fingerDown(9, {500, 300}, 1.0).kind);
    EXPECT_TRUE(gestures.isPinching());
    EXPECT_EQ(MapGesture::NotMine, gestures.move({410, 300}).kind) << "the finger's mouse drags no more";
    const MapGesture zoom = gestures.fingerMoved(9, {600, 300});
    EXPECT_EQ(MapGesture::Zoom, zoom.kind);
    EXPECT_NEAR(1.5, zoom.zoom, 1e-12) << "twice as far apart";
    EXPECT_NEAR(0.54, gestures.fingerMoved(9, {400, 300}).zoom, 1e-12) << "fingers on each other are no division by 0";
    EXPECT_EQ(MapGesture::NotMine, gestures.fingerDown(11, {100, 100}, 1.0).kind) << "a third finger";
    EXPECT_EQ(MapGesture::ZoomEnd, gestures.fingerUp(7).kind);
    EXPECT_EQ(MapGesture::NotMine, gestures.fingerMoved(9, {500, 500}).kind);
    EXPECT_EQ(MapGesture::NotMine, gestures.fingerUp(9).kind);
    EXPECT_EQ(MapGesture::NotMine, gestures.fingerUp(9).kind) << "a lift that was never a touch";
}
