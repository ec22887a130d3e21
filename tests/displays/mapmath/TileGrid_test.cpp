#include "displays/mapmath/TileGrid.h"

#include "displays/mapmath/RebuildTimer.h"

#include <cmath>
#include <gtest/gtest.h>

using namespace skyvane;

namespace {

MapView viewAt(const ChartPosition& place, MapMode mode, double heading = 0.0, int width = 1280, int height = 673) {
    MapView view;
    view.setPanel({width, height, 1280, 720, 47});
    view.setMode(mode);
    view.setAircraft(place, heading);
    view.calculateResolution();
    view.calculateViewPort();
    return view;
}

} // namespace

TEST(TileShape, IsLargeEnoughToTurn) {
    EXPECT_EQ((TileShape{2048, 1, 1}), chooseTileShape(1280, 673, 1280, 720, 16384));
    EXPECT_EQ((TileShape{2048, 2, 2}), chooseTileShape(1920, 1033, 1920, 1080, 2048));
    EXPECT_EQ((TileShape{4096, 1, 1}), chooseTileShape(1920, 1033, 1920, 1080, 16384));
    for (const int largest : {0, 100, 1000, 2048, 5000})
        for (const int width : {-5, 1, 640, 3840})
            for (const int height : {1, 480, 2160}) {
                const TileShape shape = chooseTileShape(width, height, 3840, 2160, largest);
                const double across = std::hypot(std::max(width, 1), height) + 0.25 * height;
                EXPECT_GE(shape.columns * shape.edge, across) << width << " x " << height;
                EXPECT_GE(shape.rows * shape.edge, across) << width << " x " << height;
                EXPECT_EQ(0, shape.edge & (shape.edge - 1));
            }
}

TEST(TileGrid, CoversThePanelHoweverItTurns) {
    for (const double latitude : {0.0, 51.0, -75.0})
        for (const double longitude : {0.0, 179.9}) {
            MapView view = viewAt({longitude, latitude}, MapMode::TrackUp);
            const TileGrid grid(view, chooseTileShape(1280, 673, 1280, 720, 2048));
            for (int heading = 0; heading < 360; heading += 3) {
                view.setAircraft({longitude, latitude}, heading);
                view.calculateViewPort();
                EXPECT_TRUE(grid.covers(view)) << heading;
            }
        }
}

TEST(TileGrid, IsLeftBehindByAFlightAndByAZoom) {
    MapView view = viewAt({179.9, 45.0}, MapMode::NorthUp);
    const TileGrid grid(view, chooseTileShape(1280, 673, 1280, 720, 2048));
    const double margin = 0.5 * (2048 - 1280) * view.getLongitudePerPixel();
    for (const double share : {0.99, 1.01}) {
        view.setAircraft({179.9 + share * margin, 45.0}, 0.0); // across the antimeridian
        view.calculateViewPort();
        EXPECT_EQ(share < 1.0, grid.covers(view)) << share;
    }
    view.setAircraft({179.9, 45.0}, 0.0);
    ASSERT_TRUE(view.setZoom(view.getZoom() / 1.5));
    view.calculateResolution();
    view.calculateViewPort();
    EXPECT_NEAR(1.0 / 1.5, grid.getScale(view).X, 1e-9);
    EXPECT_TRUE(grid.covers(view)) << "2048 pixels at two thirds";
    view.setZoom(view.getZoom() / 1.5);
    view.calculateResolution();
    view.calculateViewPort();
    EXPECT_FALSE(grid.covers(view));
}

TEST(TileGrid, TilesJoinAndStopAtThePoles) {
    const MapView view = viewAt({10.0, 47.0}, MapMode::NorthUp);
    const TileGrid grid(view, {512, 3, 2});
    EXPECT_NEAR(grid.getTileBox(0, 0).east, grid.getTileBox(1, 0).west, 1e-12);
    EXPECT_NEAR(grid.getTileBox(0, 0).south, grid.getTileBox(3, 0).north, 1e-12);
    EXPECT_NEAR(grid.getBox().east, grid.getTileBox(5, 0).east, 1e-12);
    EXPECT_NEAR(grid.getTileBox(4, 0).west - 10 * view.getLongitudePerPixel(), grid.getTileBox(4, 10).west, 1e-12);
    // A place has the same pixel in its tile as in the view.
    const FlatProjection tile(grid.getTileBox(1, 0), 512, 512);
    const auto inTile = tile.toPixels({10.02, 47.03});
    const auto corner = grid.getCorner(view);
    EXPECT_NEAR(view.toPanel({10.02, 47.03}).X, corner.X + 512 + inTile.X, 1e-6);
    EXPECT_NEAR(view.toPanel({10.02, 47.03}).Y, corner.Y + inTile.Y, 1e-6);

    const TileGrid polar(viewAt({10.0, 88.9}, MapMode::NorthUp), {2048, 1, 1});
    EXPECT_LE(polar.getBox().north, 89.0 + 1e-9);
    EXPECT_LE(polar.getTileBox(0, 500).north, 89.0 + 1e-9);
}

TEST(RebuildTimer, WaitsLongerInLargeViews) {
    RebuildTimer timer;
    EXPECT_TRUE(timer.isDue(0.0, {1.0, 10000.0, false, true})) << "the first set";
    timer.begin(10.0, 150.0);
    EXPECT_FALSE(timer.isDue(20.0, {150.0, 10000.0, false, true})) << "nothing has changed";
    EXPECT_FALSE(timer.isDue(10.3, {150.0, 10000.0, false, false}));
    EXPECT_TRUE(timer.isDue(10.4, {150.0, 10000.0, false, false}));
    timer.markDirty();
    EXPECT_TRUE(timer.isDue(10.4, {150.0, 10000.0, false, true}));
    EXPECT_FALSE(timer.isDue(10.4, {150.0, 100.0, false, true})) << "too much in view";
    EXPECT_FALSE(timer.isDue(10.4, {150.0, 10000.0, true, true})) << "two fingers are at it";
    timer.delayFrom(11.0, 50.0);
    EXPECT_FALSE(timer.isDue(11.2, {50.0, 10000.0, false, true}));
    EXPECT_TRUE(timer.isDue(11.3, {50.0, 10000.0, false, true}));
    timer.delayFrom(12.0, 2.9);
    EXPECT_TRUE(timer.isDue(12.0, {2.9, 10000.0, false, true}));
}
