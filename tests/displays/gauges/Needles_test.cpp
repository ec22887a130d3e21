#include "displays/gauges/Needles.h"

#include <cmath>
#include <gtest/gtest.h>

namespace skyvane {
namespace {

/// Where a hand points, in turns.
double turns(double rotationDegrees) {
    const double clockwise = -rotationDegrees / 360.0;
    return clockwise - std::floor(clockwise);
}

TEST(Needles, altimeterHandsStandAsOnAClock) {
    for (double altitude : {0.0, 100.0, 999.5, 12345.0, 45000.0, 99999.0}) {
        const AltimeterHands hands = calcAltimeterHands(altitude);
        EXPECT_NEAR(turns(hands.hundreds), std::fmod(altitude / 1000, 1), 1e-9) << altitude;
        EXPECT_NEAR(turns(hands.thousands), std::fmod(altitude / 10000, 1), 1e-9) << altitude;
        EXPECT_NEAR(turns(hands.tenThousands), std::fmod(altitude / 100000, 1), 1e-9) << altitude;
    }
    EXPECT_NEAR(calcAltimeterHands(12345).hundreds, -36 * 123.45, 1e-9);
    EXPECT_NEAR(turns(calcAltimeterHands(-100).hundreds), 0.9, 1e-9);
}

TEST(Needles, verticalSpeedRestsLeftAndNeverReachesTheRight) {
    EXPECT_EQ(calcVerticalSpeedRotation(0), 90.0);
    EXPECT_NEAR(calcVerticalSpeedAngle(1500), 90.0, 1e-4);
    EXPECT_NEAR(calcVerticalSpeedAngle(-1500), -90.0, 1e-4);
    EXPECT_NEAR(calcVerticalSpeedRotation(1500), 0.0, 1e-4); // straight up
    EXPECT_LE(calcVerticalSpeedAngle(1e9), 180.0);
    EXPECT_NEAR(toFeetPerMinute(5.08), 1000.0, 1e-9);
}

TEST(Needles, pointerDirections) {
    const irr::core::vector2d<int> centre(100, 100);
    EXPECT_NEAR(calcRotationToPointer(centre, {100, 20}), 0.0, 1e-9);
    EXPECT_NEAR(calcRotationToPointer(centre, {20, 100}), 90.0, 1e-9);
    EXPECT_NEAR(std::abs(calcRotationToPointer(centre, {100, 180})), 180.0, 1e-9);
    EXPECT_NEAR(calcRotationToPointer(centre, {180, 100}), -90.0, 1e-9);
    EXPECT_EQ(calcRotationToPointer(centre, centre), 0.0);
}

} // namespace
} // namespace skyvane
