#include "chart/geodesy/Angles.h"
#include "chart/geodesy/EarthConstants.h"
#include "chart/geodesy/EarthRectangles.h"
#include "chart/geodesy/GreatCircle.h"
#include "chart/geodesy/PointSets.h"

#include <GeographicLib/Geodesic.hpp>
#include <GeographicLib/PolygonArea.hpp>
#include <cmath>
#include <gtest/gtest.h>
#include <random>

// The independent check: a library of geodesics, set to the same sphere so that it can be exact, and to the WGS84
// ellipsoid to say what the sphere costs.

namespace skyvane {
namespace {

struct Polar {
    double distance;
    double bearing;
};

Polar inverse(const GeographicLib::Geodesic& earth, const ChartPosition& from, const ChartPosition& to) {
    Polar polar{};
    double arrival = 0.0;
    earth.Inverse(from.latitude, from.longitude, to.latitude, to.longitude, polar.distance, polar.bearing, arrival);
    return polar;
}

ChartPosition direct(const GeographicLib::Geodesic& earth, const ChartPosition& from, double bearing, double distance) {
    ChartPosition to;
    earth.Direct(from.latitude, from.longitude, bearing, distance, to.latitude, to.longitude);
    return to;
}

const GeographicLib::Geodesic& sphere() {
    static const GeographicLib::Geodesic earth(EarthRadiusMetres, 0.0);
    return earth;
}

std::string place(const ChartPosition& p) {
    return std::to_string(p.latitude) + "," + std::to_string(p.longitude);
}

/// What the header promises for distance and bearing of two places.
void expectPromise(const ChartPosition& from, const ChartPosition& to) {
    const Polar exact = inverse(sphere(), from, to);
    SCOPED_TRACE(place(from) + " to " + place(to));
    const bool planar = exact.distance < 0.001 * EarthRadiusMetres;
    const double skew = std::tan(std::fabs(from.latitude) / DegreesPerRadian) * exact.distance / EarthRadiusMetres;
    EXPECT_NEAR(calcDistance2(from, to), exact.distance, planar ? exact.distance * skew + 1e-3 : 1e-2);
    const double bearing = calcBearing2(from, to);
    EXPECT_GE(bearing, 0.0);
    EXPECT_LT(bearing, 360.0);
    // The places' rounding turns the bearing of short distances.
    const double tolerance = planar ? std::atan(skew) * DegreesPerRadian + 1e-3 / exact.distance * DegreesPerRadian
                                    : 1e-6 + 1e-2 / exact.distance * DegreesPerRadian;
    EXPECT_NEAR(Angle180(bearing - exact.bearing), 0.0, tolerance);
}

TEST(Geodesics, keepTheirPromiseAllOverTheSphere) {
    const unsigned seed = 1618;
    std::mt19937 random(seed);
    std::uniform_real_distribution<double> longitude(-180.0, 360.0), sine(-1.0, 1.0), bearing(0.0, 360.0),
        exponent(1.0, 7.28);
    for (int i = 0; i < 20000; ++i) {
        const ChartPosition from(longitude(random), std::asin(sine(random)) * DegreesPerRadian);
        if (std::fabs(from.latitude) > 89.0)
            continue;
        const double distance = std::pow(10.0, exponent(random));
        const ChartPosition to = direct(sphere(), from, bearing(random), distance);
        // Places whose longitudes run together at the pole are no test of a planar way.
        if (std::fabs(to.latitude) > 89.0 && distance < 10000.0)
            continue;
        expectPromise(from, to);
    }
}

TEST(Geodesics, leadAcrossThePolesAndTheAntimeridian) {
    for (const double pole : {1.0, -1.0}) {
        const ChartPosition here(30.0, pole * 85.0), beyond(210.0, pole * 85.0);
        EXPECT_NEAR(calcDistance2(here, beyond), 10.0 * MetresPerDegree, 1e-2);
        EXPECT_NEAR(Angle180(calcBearing2(here, beyond) - (pole > 0.0 ? 0.0 : 180.0)), 0.0, 1e-6);
        expectPromise(here, ChartPosition(195.0, pole * 84.0));
        expectPromise(here, ChartPosition(-30.0, pole * 89.99));
    }
    for (const double span : {0.01, 0.04, 0.06, 1.0, 80.0})
        for (const double latitude : {-60.0, 0.0, 45.0}) {
            expectPromise(ChartPosition(180.0 - span, latitude), ChartPosition(-180.0 + span, latitude + 0.01));
            expectPromise(ChartPosition(-180.0 + span, latitude), ChartPosition(180.0 - span, latitude + 0.01));
            expectPromise(ChartPosition(span, latitude), ChartPosition(360.0 - span, latitude + 0.01));
        }
}

TEST(Geodesics, ofTheSphereStayNearTheEllipsoid) {
    const unsigned seed = 2718;
    std::mt19937 random(seed);
    std::uniform_real_distribution<double> longitude(0.0, 360.0), latitude(-75.0, 75.0);
    for (int i = 0; i < 5000; ++i) {
        const ChartPosition from(longitude(random), latitude(random)), to(longitude(random), latitude(random));
        const Polar ellipsoid = inverse(GeographicLib::Geodesic::WGS84(), from, to);
        if (ellipsoid.distance > 19000000.0)
            continue; // nearly antipodal: the ellipsoid's way is another one
        EXPECT_NEAR(calcDistance2(from, to), ellipsoid.distance, 0.006 * ellipsoid.distance);
        if (ellipsoid.distance < 15000000.0) {
            EXPECT_NEAR(Angle180(calcBearing2(from, to) - ellipsoid.bearing), 0.0, 0.5) << place(from) << place(to);
        }
    }
}

TEST(Geodesics, vectorsHoldPlaces) {
    for (double latitude = -90.0; latitude <= 90.0; latitude += 7.5)
        for (double longitude = 0.0; longitude < 360.0; longitude += 7.5) {
            double lon = -1.0, lat = -1.0;
            calcChartPositionFromVector(calcVectorFromChartPositionf64(longitude, latitude) * 3.5, lon, lat);
            EXPECT_NEAR(lat, latitude, 1e-6);
            if (std::fabs(latitude) < 90.0) {
                EXPECT_NEAR(Angle180(lon - longitude), 0.0, 1e-6);
            }
            EXPECT_GE(lon, 0.0);
            EXPECT_LE(lon, 360.0);
            calcChartPositionFromVector(calcVectorFromChartPosition(longitude, latitude), lon, lat);
            EXPECT_NEAR(lat, latitude, 0.05) << "arc functions of single precision";
        }
    double lon = -1.0, lat = -1.0;
    calcChartPositionFromVector(irr::core::vector3d<double>(0, 0, 0), lon, lat);
    EXPECT_EQ(lon, 0.0);
    EXPECT_EQ(lat, 0.0);
    calcChartPositionFromVector(irr::core::vector3d<double>(0, -2, 0), lon, lat);
    EXPECT_EQ(lat, -90.0);
    calcChartPositionFromVector(irr::core::vector3d<double>(-1, 0, 0), lon, lat);
    EXPECT_EQ(lon, 180.0);
}

TEST(Geodesics, ofVectorsAreThoseOfPlaces) {
    const ChartPosition here(-28.5, 42.25), there(12.0, 48.0);
    const auto a = calcVectorFromChartPositionf64(here.longitude, here.latitude) * 6371.0;
    const auto b = calcVectorFromChartPositionf64(there.longitude, there.latitude) * 0.5;
    EXPECT_NEAR(calcDistance(a, b), calcDistance2(here, there), 1e-6);
    EXPECT_NEAR(calcBearing(a, b), calcBearing2(here, there), 1e-9);
    const auto fa = calcVectorFromChartPosition(here.longitude, here.latitude);
    const auto fb = calcVectorFromChartPosition(there.longitude, there.latitude);
    EXPECT_NEAR(calcDistance(fa, fb), calcDistance2(here, there), 2.0);
    EXPECT_NEAR(calcBearing(fa, fb), calcBearing2(here, there), 1e-4);
    EXPECT_NEAR(calcDistance(a, irr::core::vector3d<double>(0, 0, 0)), EarthRadiusMetres * std::acos(0.0), 1e-6);
}

TEST(Geodesics, pointToTheMagneticPole) {
    const ChartPosition here(-28.5, 42.25);
    const double variation = inverse(sphere(), here, magneticNorth).bearing;
    EXPECT_NEAR(Angle180(calcTrueHeading(here, 350.0) - 350.0 - variation), 0.0, 1e-5);
    EXPECT_GE(calcTrueHeading(here, -700.0), 0.0);
    EXPECT_LT(calcTrueHeading(here, 700.0), 360.0);
}

TEST(Geodesics, measureRectanglesAndPolygons) {
    const ChartPosition nw(359.0, 43.0), se(2.0, 41.0);
    // Cells of a minute along the parallels make the library's polygon follow them.
    GeographicLib::PolygonArea outline(sphere());
    for (int i = 0; i <= 180; ++i)
        outline.AddPoint(41.0, -1.0 + i / 60.0);
    for (int i = 180; i >= 0; --i)
        outline.AddPoint(43.0, -1.0 + i / 60.0);
    double perimeter = 0.0, area = 0.0;
    outline.Compute(false, true, perimeter, area);
    EXPECT_NEAR(calcConstrainedArea(nw, se), area / 1e6, area / 1e6 * 1e-6);
    EXPECT_NEAR(calcConstrainedArea(ChartPosition(0, 90), ChartPosition(180, -90)), 2.0 * 3.14159265358979 * 40589651.0,
                10.0);
    EXPECT_EQ(calcConstrainedArea(ChartPosition(0, 90), ChartPosition(360, -90)), 0.0);

    const std::list<ChartPosition> triangle = {{359.97, 42.0}, {0.03, 42.01}, {0.0, 42.06}};
    GeographicLib::PolygonArea corners(sphere());
    GeographicLib::PolygonArea open(sphere(), true);
    for (const ChartPosition& corner : triangle) {
        corners.AddPoint(corner.latitude, corner.longitude);
        open.AddPoint(corner.latitude, corner.longitude);
    }
    corners.Compute(false, true, perimeter, area);
    EXPECT_NEAR(calcPolyLineArea(triangle), area, area * 1e-3);
    open.Compute(false, true, perimeter, area);
    EXPECT_NEAR(calcPolyLineLength(triangle), perimeter, perimeter * 1e-3);
}

} // namespace
} // namespace skyvane
