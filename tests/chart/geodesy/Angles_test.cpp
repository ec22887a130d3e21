#include "chart/geodesy/Angles.h"

#include <cmath>
#include <gtest/gtest.h>

namespace skyvane {
namespace {

TEST(Angles, wrapAndFoldWhatIsNearTheSeams) {
    EXPECT_EQ(Angle0to360(360.0), 0.0);
    EXPECT_EQ(Angle0to360(-90.0), 270.0);
    EXPECT_EQ(Angle0to360(-1e-20), 0.0); // never 360
    EXPECT_EQ(Angle180(270.0), -90.0);
    EXPECT_EQ(Angle180(-190.0), 170.0);
    EXPECT_EQ(Latitudinize(100.0), 80.0);
    EXPECT_EQ(Latitudinize(-100.0), -80.0);
    EXPECT_EQ(Latitudinize(350.0), -10.0);
}

TEST(Angles, keepTheDirectionThatTheyName) {
    for (double degrees = -1000.0; degrees < 1000.0; degrees += 7.3) {
        const double k = 3.14159265358979323846 / 180.0;
        EXPECT_NEAR(std::sin(Angle0to360(degrees) * k), std::sin(degrees * k), 1e-12);
        EXPECT_NEAR(std::cos(Angle180(degrees) * k), std::cos(degrees * k), 1e-12);
        EXPECT_NEAR(std::sin(Latitudinize(degrees) * k), std::sin(degrees * k), 1e-12);
        EXPECT_LE(std::abs(Latitudinize(degrees)), 90.0);
    }
}

TEST(Angles, eastEdgesKeepTheirPlace) {
    EXPECT_EQ(Angle360(360.0), 360.0);
    EXPECT_EQ(Angle360(-360.0), 0.0);
    EXPECT_EQ(Angle360(361.0), 1.0);
}

TEST(Angles, differencesTakeTheShortWay) {
    EXPECT_EQ(AngleDiff(350.0, 10.0), -20.0);
    EXPECT_EQ(AngleDiff(10.0, 350.0), 20.0);
    EXPECT_EQ(AngleDiff(200.0, 10.0), -170.0);
    EXPECT_EQ(headingDiff(350.0, 10.0), 20.0);
    EXPECT_EQ(headingDiff(0.0, 180.0), 180.0);
    EXPECT_EQ(transformLongitude(1.0, 359.5), 1.5);
    EXPECT_EQ(transformLongitude(-0.5, 359.0), 0.5);
    EXPECT_EQ(transformLongitude(100.0, 359.0), 101.0);
    EXPECT_EQ(hlp_Flip(30.0), 150.0);
}

TEST(Angles, areBlendedAcrossTheirSeam) {
    const double k = 3.14159265358979323846 / 180.0;
    EXPECT_NEAR(lerpAngle(350.0 * k, 20.0 * k, 0.5), 5.0 * k, 1e-12);
    EXPECT_NEAR(lerpAngle(350.0 * k, 20.0 * k, 0.0), -10.0 * k, 1e-12);
    EXPECT_NEAR(lerpAngle(350.0 * k, 20.0 * k, 1.0), 20.0 * k, 1e-12);
}

} // namespace
} // namespace skyvane
