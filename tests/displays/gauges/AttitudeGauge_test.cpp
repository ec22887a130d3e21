#include "displays/gauges/AttitudeGauge.h"

#include "attitude/math/Matrix3x3.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

namespace skyvane {
namespace {

using Vector = Matrix3x3::Vector;
constexpr double degree = 3.14159265358979323846 / 180.0;

/// Heading, nose up and right bank, in degrees.
Matrix3x3 attitude(double heading, double pitch, double bank) {
    return createYawMatrix(heading * degree) * createPitchMatrix(-pitch * degree) * createRollMatrix(-bank * degree);
}

TEST(AttitudeGauge, readsPitchAndBankAtEveryHeading) {
    for (double heading = 0; heading < 360; heading += 45) {
        for (double pitch = -85; pitch <= 85; pitch += 17) {
            for (double bank = -85; bank <= 85; bank += 17) {
                const AttitudePose pose = calcAttitudePose(attitude(heading, pitch, bank));
                EXPECT_NEAR(pose.pitchDegrees, pitch, 1e-6);
                EXPECT_NEAR(pose.rollDegrees, bank, 1e-6);
            }
        }
    }
}

TEST(AttitudeGauge, foldsInvertedFlight) {
    const Matrix3x3 inverted = attitude(30, 20, 180);
    EXPECT_NEAR(CalcIndicatedPitch(inverted.getForwardVector(), inverted.getUpVector()), 160.0, 1e-6);
    EXPECT_NEAR(calcAttitudePose(inverted).pitchDegrees, 20.0, 1e-6);
    EXPECT_NEAR(calcAttitudePose(inverted).rollDegrees, 180.0, 1e-6);
    EXPECT_NEAR(calcAttitudePose(attitude(0, 0, 150)).rollDegrees, 150.0, 1e-6);
    EXPECT_NEAR(calcAttitudePose(attitude(0, 0, -150)).rollDegrees, 210.0, 1e-6);
}

TEST(AttitudeGauge, survivesAVerticalNoseAndScaledVectors) {
    EXPECT_NEAR(CalcIndicatedPitch(Vector(0, 5, 0), Vector(0, 0, -1)), 90.0, 1e-6);
    EXPECT_EQ(CalcIndicatedRoll(Vector(0, 5, 0), Vector(0, 0, -1)), 0.0);
    EXPECT_EQ(CalcIndicatedPitch(Vector(0, 0, 0), Vector(0, 0, 0)), 0.0);
    EXPECT_NEAR(CalcIndicatedPitch(Vector(0, 3, 3), Vector(0, 3, -3)), 45.0, 1e-6);
}

/// The slow way: the ladder's zero line, turned with the dial, must lie where the horizon is.
TEST(AttitudeGauge, movesTheHorizonAgainstTheNose) {
    const double edge = 300.0;
    const auto level = calcLadderOffset({9.0, 0.0}, edge);
    EXPECT_NEAR(level.X, 0.0, 1e-9);
    EXPECT_NEAR(level.Y, 30.0, 1e-9); // nose up: the horizon goes down
    for (double pitch = -60; pitch <= 60; pitch += 15) {
        for (double bank = -90; bank <= 270; bank += 30) {
            const auto offset = calcLadderOffset({pitch, bank}, edge);
            // A right bank turns the picture counter-clockwise, so what is below moves to the right.
            EXPECT_NEAR(offset.X, std::sin(bank * degree) * edge * pitch / 90, 1e-9);
            EXPECT_NEAR(offset.Y, std::cos(bank * degree) * edge * pitch / 90, 1e-9);
        }
    }
}

TEST(AttitudeGauge, knowsWhatIsNoAttitude) {
    Matrix3x3 m;
    EXPECT_TRUE(isFinite(m));
    m(2, 1) = std::numeric_limits<double>::quiet_NaN();
    EXPECT_FALSE(isFinite(m));
    m(2, 1) = std::numeric_limits<double>::infinity();
    EXPECT_FALSE(isFinite(m));
}

} // namespace
} // namespace skyvane
