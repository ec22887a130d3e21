#include "chart/geodesy/GreatCircle.h"

#include "chart/geodesy/Angles.h"
#include "chart/geodesy/EarthConstants.h"
#include "chart/geodesy/LocalFrame.h"

#include <cmath>
#include <gtest/gtest.h>
#include <random>

namespace skyvane {
namespace {

constexpr long double Degree = 3.14159265358979323846264338327950288L / 180.0L;

struct Polar {
    double distance;
    double bearing;
};

/// The independent way: haversines, and the tangent of the bearing, in extended precision.
Polar slowTwin(const ChartPosition& from, const ChartPosition& to) {
    const long double lat1 = from.latitude * Degree, lat2 = to.latitude * Degree;
    const long double lon = (to.longitude - from.longitude) * Degree;
    const long double a =
        std::pow(std::sin((lat2 - lat1) / 2), 2) + std::cos(lat1) * std::cos(lat2) * std::pow(std::sin(lon / 2), 2);
    const long double bearing =
        std::atan2(std::sin(lon) * std::cos(lat2),
                   std::cos(lat1) * std::sin(lat2) - std::sin(lat1) * std::cos(lat2) * std::cos(lon));
    return {static_cast<double>(2 * EarthRadiusMetres * std::asin(std::sqrt(a))),
            static_cast<double>(bearing / Degree)};
}

TEST(GreatCircle, agreesWithTheIndependentWay) {
    const unsigned seed = 4711;
    std::mt19937 random(seed);
    std::uniform_real_distribution<double> longitude(-180.0, 540.0), latitude(-80.0, 80.0), exponent(-4.0, 1.5),
        side(-1.0, 1.0);
    for (int i = 0; i < 5000; ++i) {
        const ChartPosition from(longitude(random), latitude(random));
        const double size = std::pow(10.0, exponent(random));
        const ChartPosition to(from.longitude + size * side(random),
                               std::max(-80.0, std::min(80.0, from.latitude + size * side(random))));
        const Polar twin = slowTwin(from, to);
        const double distance = calcDistance2(from, to);
        const double bearing = calcBearing2(from, to);
        const std::string where = std::to_string(from.longitude) + " " + std::to_string(from.latitude) + " to " +
                                  std::to_string(to.longitude) + " " + std::to_string(to.latitude);
        // The plane's error grows with the tangent of the latitude.
        const bool planar = twin.distance < 0.0011 * EarthRadiusMetres;
        EXPECT_NEAR(distance, twin.distance, planar ? twin.distance * 3e-3 : 1e-2) << where;
        EXPECT_NEAR(Angle180(bearing - twin.bearing), 0.0, planar ? 0.25 : 1e-4) << where;
        EXPECT_GE(bearing, 0.0);
        EXPECT_LT(bearing, 360.0);
    }
}

TEST(GreatCircle, crossesTheMeridiansTheShortWay) {
    for (const double meridian : {0.0, 180.0, 360.0, -180.0})
        for (const double span : {0.02, 2.0}) {
            const ChartPosition west(meridian - span / 2, 0.0), east(Angle180(meridian + span / 2), 0.0);
            // The constant for degrees isn't exact: 359 and -1 lie 5 mm apart.
            EXPECT_NEAR(calcDistance2(west, east), span * MetresPerDegree, 6e-3);
            EXPECT_NEAR(calcBearing2(west, east), 90.0, 1e-6);
            EXPECT_NEAR(calcBearing2(east, west), 270.0, 1e-6);
        }
}

TEST(GreatCircle, standsExtremePlaces) {
    const ChartPosition here(-28.5, 42.25);
    EXPECT_NEAR(calcDistance2(here, here), 0.0, 1e-9);
    EXPECT_NEAR(calcDistance2(here, ChartPosition(151.5, -42.25)), EarthRadiusMetres * std::acos(-1.0), 1.0);
    EXPECT_TRUE(std::isfinite(calcDistance2(ChartPosition(0.0, 89.95), ChartPosition(90.0, 89.96))));
    EXPECT_TRUE(std::isfinite(calcBearing2(ChartPosition(0.0, 90.0), here)));
    EXPECT_TRUE(std::isnan(calcDistance2(ChartPosition(std::nan(""), 0.0), here)));
    EXPECT_TRUE(std::isnan(calcBearing2(here, ChartPosition(0.0, HUGE_VAL))));
    EXPECT_TRUE(std::isnan(ChartPosition2Vector3df64(ChartPosition(HUGE_VAL, 0.0), here, 0.0).X));
}

TEST(LocalFrame, isEquirectangularAroundItsOrigin) {
    const ChartPosition origin(179.99, 60.0);
    const auto place = ChartPosition2Vector3df64(origin, ChartPosition(-179.99, 60.01), 123.0);
    EXPECT_NEAR(place.X, 0.02 * 0.5 * MetresPerDegree, 1e-3);
    EXPECT_EQ(place.Y, 123.0);
    EXPECT_NEAR(place.Z, 0.01 * MetresPerDegree, 1e-6);
    const auto polar = ChartPosition2Vector3df64(ChartPosition(0.0, 89.95), ChartPosition(1.0, 89.95), 0.0);
    EXPECT_NEAR(polar.X, PolarCosine * MetresPerDegree, 1e-6);
}

} // namespace
} // namespace skyvane
