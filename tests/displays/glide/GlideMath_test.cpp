#include "displays/glide/GlideMath.h"

#include <gtest/gtest.h>
#include <limits>

namespace skyvane {
namespace {

const double nan = std::numeric_limits<double>::quiet_NaN();
const double infinite = std::numeric_limits<double>::infinity();

TEST(GlideMath, aGradientIsHeightLostForDistanceFlown) {
    EXPECT_DOUBLE_EQ(glideGradient(36.0, -1.852), 0.1) << "18.52 m/s over the ground";
    EXPECT_DOUBLE_EQ(glideGradient(72.0, 1.852), -0.05) << "climbing";
    EXPECT_EQ(glideGradient(4.9, -1.0), 10000.0);
    EXPECT_LT(glideGradient(5.0, -1.0), 1.0);
    EXPECT_EQ(glideGradient(nan, -1.0), 10000.0);
    EXPECT_EQ(glideGradient(50.0, nan), 10000.0);
    EXPECT_EQ(glideGradient(-50.0, -1.0), 10000.0);
}

TEST(GlideMath, theBestGradientIsThatOfTheAircraft) {
    EXPECT_DOUBLE_EQ(bestGradient(40.0), 0.025);
    EXPECT_EQ(bestGradient(0.0), -4.0);
    EXPECT_EQ(bestGradient(-1.0), -4.0);
    EXPECT_EQ(bestGradient(nan), -4.0);
}

TEST(GlideMath, anArrivalIsTheAltitudeLessWhatTheWayCosts) {
    // 10 NM at 1:20 cost 926 m; 1000 feet are 304.8 m.
    EXPECT_DOUBLE_EQ(altitudeAbove(0.05, 1.0, 2000.0, 10.0, 1000.0), 2000.0 - 926.0 - 304.8);
    EXPECT_DOUBLE_EQ(altitudeAbove(0.05, 4.0, 2000.0, 10.0, 1000.0), 2000.0 - 4.0 * 926.0 - 304.8);
    EXPECT_DOUBLE_EQ(altitudeAbove(0.05, 1.0, 2000.0, 0.0, -100.0), 2000.0 + 30.48) << "over a field below the sea";
    EXPECT_EQ(altitudeAbove(0.0009, 1.0, 2000.0, 10.0, 0.0), -999999.0);
    EXPECT_GT(altitudeAbove(0.0009, 4.0, 2000.0, 10.0, 0.0), 1900.0);
    EXPECT_EQ(altitudeAbove(-0.05, 1.0, 2000.0, 10.0, 0.0), -999999.0);
    EXPECT_EQ(altitudeAbove(-4.0, 4.0, 2000.0, 10.0, 0.0), -999999.0) << "no best glide";
    for (const double multiplier : {1.0, 1.0 / 0.75, 2.0, 4.0})
        EXPECT_EQ(altitudeAbove(10000.0, multiplier, 2000.0, 0.001, 0.0), -999999.0) << "too slow, near the field";
    for (const double bad : {nan, infinite}) {
        EXPECT_EQ(altitudeAbove(bad, 1.0, 2000.0, 10.0, 0.0), -999999.0);
        EXPECT_EQ(altitudeAbove(0.05, 1.0, bad, 10.0, 0.0), -999999.0);
        EXPECT_EQ(altitudeAbove(0.05, 1.0, 2000.0, bad, 0.0), -999999.0);
    }
}

TEST(GlideMath, theRatioOfTheInformation) {
    EXPECT_NEAR(glideRatio(100.0, -5.14444444), 10.0, 1e-9);
    EXPECT_NEAR(glideRatio(100.0, 5.14444444), -10.0, 1e-9);
    EXPECT_EQ(glideRatio(100.0, 0.0), 0.0);
    EXPECT_EQ(glideRatio(nan, -1.0), 0.0);
    EXPECT_EQ(glideRatio(100.0, nan), 0.0);
}

TEST(GlideMath, theGlideAltitudeNeedsRatioDistanceAndAltitude) {
    double metres = 0.0;
    ASSERT_TRUE(glideAltitude(1000.0, 10.0, 20.0, metres));
    EXPECT_DOUBLE_EQ(metres, 74.0) << "18520 / 20 = 926";
    ASSERT_TRUE(glideAltitude(1000.0, 10.0, 1.0, metres));
    EXPECT_DOUBLE_EQ(metres, -17520.0);
    EXPECT_FALSE(glideAltitude(1000.0, 10.0, 0.99, metres));
    EXPECT_FALSE(glideAltitude(1000.0, 10.0, -1.0, metres));
    EXPECT_FALSE(glideAltitude(1000.0, 0.0, 20.0, metres));
    EXPECT_FALSE(glideAltitude(0.0, 10.0, 20.0, metres));
    EXPECT_FALSE(glideAltitude(nan, 10.0, 20.0, metres));
    EXPECT_FALSE(glideAltitude(1000.0, nan, 20.0, metres));
    EXPECT_FALSE(glideAltitude(1000.0, 10.0, nan, metres));
}

} // namespace
} // namespace skyvane
