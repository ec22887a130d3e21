#include "attitude/math/Matrix3x3.h"

#include <cmath>
#include <gtest/gtest.h>

namespace skyvane {
namespace {

using Vector = Matrix3x3::Vector;
constexpr double pi = 3.14159265358979323846;

void expectNear(const Vector& actual, const Vector& expected) {
    EXPECT_NEAR(actual.X, expected.X, 1e-12);
    EXPECT_NEAR(actual.Y, expected.Y, 1e-12);
    EXPECT_NEAR(actual.Z, expected.Z, 1e-12);
}

TEST(Matrix3x3, turnsAsAnAircraftDoes) {
    expectNear(createYawMatrix(pi / 2).getForwardVector(), Vector(1, 0, 0));    // north to east
    expectNear(createPitchMatrix(pi / 2).getForwardVector(), Vector(0, -1, 0)); // nose down
    expectNear(createRollMatrix(pi / 2).column(0), Vector(0, 1, 0));            // right wing up
    expectNear(Matrix3x3().getUpVector(), Vector(0, 1, 0));
}

TEST(Matrix3x3, buildsFromUpAndForward) {
    const Matrix3x3 turned = createYawMatrix(0.7) * createPitchMatrix(-0.3) * createRollMatrix(1.1);
    const Matrix3x3 rebuilt(turned.getUpVector(), turned.getForwardVector());
    const Matrix3x3 unit = rebuilt * turned.transposed();
    for (int r = 0; r < 3; ++r)
        for (int c = 0; c < 3; ++c)
            EXPECT_NEAR(unit(r, c), r == c ? 1.0 : 0.0, 1e-12);
}

TEST(Matrix3x3, losesItsHeadingAlone) {
    for (double heading = -3.0; heading < 3.0; heading += 0.37) {
        const Matrix3x3 attitude = createPitchMatrix(-0.4) * createRollMatrix(0.9);
        const Matrix3x3 left = removeHeadingFromMatrix(createYawMatrix(heading) * attitude);
        for (int c = 0; c < 3; ++c)
            expectNear(left.column(c), attitude.column(c));
    }
}

} // namespace
} // namespace skyvane
