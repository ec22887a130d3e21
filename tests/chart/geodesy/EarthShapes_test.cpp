#include "chart/geodesy/Angles.h"
#include "chart/geodesy/EarthRectangles.h"
#include "chart/geodesy/GreatCircle.h"
#include "chart/geodesy/LocalFrame.h"
#include "chart/geodesy/PointSets.h"

#include <cmath>
#include <gtest/gtest.h>
#include <random>

namespace skyvane {
namespace {

TEST(LocalFrame, isUndoneByItsInverse) {
    const unsigned seed = 577;
    std::mt19937 random(seed);
    std::uniform_real_distribution<double> longitude(-180.0, 360.0), latitude(-89.99, 89.99), offset(-3e5, 3e5);
    for (int i = 0; i < 5000; ++i) {
        const ChartPosition origin(longitude(random), latitude(random));
        const irr::core::vector3d<double> place(offset(random), 0.0, offset(random));
        const ChartPosition there = Vector3df642ChartPosition(origin, place);
        if (std::fabs(place.X) > 170.0 * MetresPerDegree * longitudeScale(origin.latitude))
            continue; // half a turn away another way is the shorter
        const auto back = ChartPosition2Vector3df64(origin, there, 0.0);
        const double metresPerRounding = 1e-11 * MetresPerDegree;
        EXPECT_NEAR(back.X, place.X, 10.0 * metresPerRounding) << origin.longitude << " " << origin.latitude;
        EXPECT_NEAR(back.Z, place.Z, metresPerRounding);
        const ChartPosition again = Vector3df642ChartPosition(origin, back);
        EXPECT_NEAR(again.longitude, there.longitude, 1e-9);
        EXPECT_NEAR(again.latitude, there.latitude, 1e-11);
    }
}

TEST(LocalFrame, twinsInSinglePrecisionAgree) {
    const ChartPosition origin(-28.5, 42.25), place(-28.4, 42.2);
    const auto precise = ChartPosition2Vector3df64(origin, place, 12.0);
    const auto single = ChartPosition2Vector3df(origin, place, 12.0);
    EXPECT_FLOAT_EQ(single.X, static_cast<float>(precise.X));
    EXPECT_FLOAT_EQ(single.Y, 12.0f);
    EXPECT_FLOAT_EQ(single.Z, static_cast<float>(precise.Z));
    const ChartPosition back = Vector3df2ChartPosition(origin, single);
    EXPECT_NEAR(Angle180(back.longitude - place.longitude), 0.0, 1e-7);
    EXPECT_NEAR(back.latitude, place.latitude, 1e-7);
}

TEST(EarthRectangles, standAroundTheirCentre) {
    ChartPosition nw, se;
    calcRectangleAround(nw, se, ChartPosition(0.0, 60.0), 20000.0);
    EXPECT_NEAR(nw.longitude, 360.0 - 0.17986, 1e-5);
    EXPECT_NEAR(se.longitude, 0.17986, 1e-5);
    EXPECT_NEAR(nw.latitude, 60.08993, 1e-5);
    EXPECT_NEAR(se.latitude, 59.91007, 1e-5);
    EXPECT_NEAR(calcDistance2(ChartPosition(nw.longitude, 60.0), ChartPosition(se.longitude, 60.0)), 20000.0, 1.0);
    calcRectangleAround(nw, se, ChartPosition(10.0, -30.0), 20000.0);
    EXPECT_GT(nw.latitude, 270.0) << "to be folded by every consumer";
    EXPECT_NEAR(Latitudinize(nw.latitude), -29.91007, 1e-5);
    calcRectangleAround(nw, se, ChartPosition(0.0, 89.95), 20000.0);
    EXPECT_NEAR(se.longitude, 51.5273583038984, 1e-9);
}

TEST(PointSets, areBoundedAcrossTheSeam) {
    ChartPosition nw(7, 7), se(7, 7);
    double area = -1.0;
    EXPECT_FALSE(calculateBoundingBox(nw, se, area, {}));
    EXPECT_EQ(nw.longitude, 7.0);
    EXPECT_EQ(area, -1.0);
    EXPECT_FALSE(calculateBoundingBox(nw, se, area, {{3.0, 4.0}}));
    EXPECT_EQ(nw.longitude, 3.0);
    EXPECT_EQ(se.latitude, 4.0);
    EXPECT_EQ(area, 0.0);
    EXPECT_TRUE(calculateBoundingBox(nw, se, area, {{359.99, 0.0}, {0.02, 0.01}, {359.98, -0.03}, {0.0, 0.04}}));
    EXPECT_EQ(nw.longitude, 359.98);
    EXPECT_EQ(nw.latitude, 0.04);
    EXPECT_EQ(se.longitude, 0.02);
    EXPECT_EQ(se.latitude, -0.03);
    EXPECT_NEAR(area, 0.04 * 0.07 * MetresPerDegree * MetresPerDegree, 1.0);
}

TEST(PointSets, measureLinesAndPolygons) {
    EXPECT_EQ(calcPolyLineLength({}), 0.0);
    EXPECT_EQ(calcPolyLineArea({}), 0.0);
    EXPECT_NEAR(calcPolyLineArea({{0.0, 0.0}, {1.0, 1.0}}), 0.0, 1e-3);
    const double side = 1000.0 / MetresPerDegree;
    const std::list<ChartPosition> square = {{0, 0}, {side, 0}, {side, side}, {0, side}};
    EXPECT_NEAR(calcPolyLineArea(square), 1e6, 1.0);
    EXPECT_NEAR(calcPolyLineArea(std::list<ChartPosition>(square.rbegin(), square.rend())), 1e6, 1.0);
    EXPECT_NEAR(calcPolyLineLength(square), 3000.0, 0.1);
}

} // namespace
} // namespace skyvane
