#include "chart/geodesy/Geoid.h"

#include <cmath>
#include <gtest/gtest.h>
#include <random>

namespace skyvane {
namespace {

/// EGM84 by its coefficients, not by the table.
TEST(Geoid, holdsTheModelsValues) {
    const struct {
        double latitude, longitude, metres;
    } values[] = {
        {90.0, 0.0, 13.096}, {-90.0, 0.0, -29.713}, {0.0, 0.0, 18.329}, {5.0, 78.5, -106.688}, {42.5, 1.5, 51.791},
    };
    for (const auto& value : values)
        EXPECT_NEAR(getInterpolatedUndulation(value.longitude, value.latitude), value.metres, 1.0 / 64.0)
            << value.latitude << " " << value.longitude;
}

TEST(Geoid, blendsBetweenTheFourPointsAround) {
    const unsigned seed = 84;
    std::mt19937 random(seed);
    std::uniform_int_distribution<int> column(0, 719), row(-180, 179);
    std::uniform_real_distribution<double> share(0.0, 1.0);
    for (int i = 0; i < 2000; ++i) {
        const double west = 0.5 * column(random), south = 0.5 * row(random), fx = share(random), fy = share(random);
        const auto at = [](double lon, double lat) { return getInterpolatedUndulation(lon, lat); };
        const double expected = (1 - fx) * (1 - fy) * at(west, south) + fx * (1 - fy) * at(west + 0.5, south) +
                                (1 - fx) * fy * at(west, south + 0.5) + fx * fy * at(west + 0.5, south + 0.5);
        EXPECT_NEAR(at(west + 0.5 * fx, south + 0.5 * fy), expected, 1e-9);
    }
}

TEST(Geoid, staysInsideItsTable) {
    const double northPole = getInterpolatedUndulation(0.0, 90.0), southPole = getInterpolatedUndulation(0.0, -90.0);
    for (const double longitude : {0.0, 123.4, 359.99999999, 360.0, -0.0000001, -180.0, 720.0}) {
        EXPECT_NEAR(getInterpolatedUndulation(longitude, 90.0), northPole, 0.1);
        EXPECT_NEAR(getInterpolatedUndulation(longitude, -90.0), southPole, 0.1);
    }
    EXPECT_NEAR(getInterpolatedUndulation(359.9999999, 10.0), getInterpolatedUndulation(0.0, 10.0), 1e-5);
    EXPECT_NEAR(getInterpolatedUndulation(-1.5, 95.0), getInterpolatedUndulation(358.5, 85.0), 1e-9);
    EXPECT_TRUE(std::isnan(getInterpolatedUndulation(HUGE_VAL, 0.0)));
    EXPECT_TRUE(std::isnan(getInterpolatedUndulation(0.0, std::nan(""))));
}

TEST(Geoid, turnsHeightsBothWays) {
    // The geoid lies above the ellipsoid at Andorra: the sea is nearer than the ellipsoid.
    EXPECT_NEAR(calcMSLFromWGS84Ellipsoid(1000.0, 1.5, 42.5), 948.21, 0.02);
    EXPECT_NEAR(calcWGS84EllipsoidFromMSL(calcMSLFromWGS84Ellipsoid(1000.0, 1.3, 42.7), 1.3, 42.7), 1000.0, 1e-9);
}

} // namespace
} // namespace skyvane
