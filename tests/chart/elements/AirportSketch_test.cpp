#include "chart/elements/AirportElement.h"
#include "chart/elements/RunwayEnds.h"
#include "chart/geodesy/GreatCircle.h"

#include <gtest/gtest.h>

namespace skyvane {

namespace {

constexpr double degreesPerMetre = 1.0 / 111194.940345393;

AirportElement withRunway(uint32_t direction, uint32_t length, uint32_t width) {
    AirportElement airport;
    airport.position = {20.0, 0.0};
    airport.elevationFeet = 100;
    airport.runways.resize(1);
    airport.runways[0].directionDegrees = direction;
    airport.runways[0].lengthFeet = length;
    airport.runways[0].widthFeet = width;
    return airport;
}

TEST(RunwayEnds, elevationOfTheEndOrTheAirport) {
    auto airport = withRunway(0, 0, 0);
    int feet = 0;
    EXPECT_FALSE(selectThreshholdElevation(&airport, &airport.runways[0], true, feet));
    EXPECT_EQ(feet, 100);
    airport.runways[0].ends[1].elevationFeet = 90;
    airport.runways[0].ends[1].isElevationKnown = true;
    EXPECT_TRUE(selectThreshholdElevation(&airport, &airport.runways[0], false, feet));
    EXPECT_EQ(feet, 90);
}

TEST(RunwayEnds, positionsAreLaidOut) {
    auto airport = withRunway(90, 0, 0); // unknown: 600 m from west to east
    Runway& runway = airport.runways[0];
    ChartPosition position;
    EXPECT_FALSE(selectThreshholdPosition(&airport, &runway, true, position));
    EXPECT_NEAR(position.longitude, 20.0 - 300.0 * degreesPerMetre, 1e-9);
    EXPECT_NEAR(position.latitude, 0.0, 1e-9);
    EXPECT_FALSE(selectThreshholdPosition(&airport, &runway, false, position));
    EXPECT_NEAR(position.longitude, 20.0 + 300.0 * degreesPerMetre, 1e-9);

    runway.ends[0].isThresholdKnown = true;
    runway.ends[0].threshold = {1.0, 0.0};
    EXPECT_TRUE(selectThreshholdPosition(&airport, &runway, true, position));
    EXPECT_EQ(position.longitude, 1.0);
    EXPECT_FALSE(selectThreshholdPosition(&airport, &runway, false, position));
    EXPECT_NEAR(position.longitude, 1.0 + 600.0 * degreesPerMetre, 1e-9);
    runway.lengthFeet = 3; // at least 10 m
    selectThreshholdPosition(&airport, &runway, false, position);
    EXPECT_NEAR(position.longitude, 1.0 + 10.0 * degreesPerMetre, 1e-9);

    double course = 0.0;
    EXPECT_FALSE(selectRunwayDirection(&runway, false, course));
    EXPECT_EQ(course, 270.0);
    runway.ends[1].isThresholdKnown = true;
    runway.ends[1].threshold = {1.0, 0.1};
    EXPECT_TRUE(selectRunwayDirection(&runway, true, course));
    EXPECT_NEAR(course, 0.0, 1e-6);
    EXPECT_TRUE(selectRunwayDirection(&runway, false, course));
    EXPECT_NEAR(course, 180.0, 1e-6);
}

TEST(RunwayEnds, parallelRunwaysMoveApart) {
    Runway runway;
    runway.widthFeet = 50;
    runway.ends[0].name = "36L";
    irr::core::vector3d<double> south(0.0, 0.0, -300.0), north(0.0, 0.0, 300.0);
    correctThreshholdPosition(&runway, south, north);
    EXPECT_NEAR(south.X, -60.96, 1e-9) << "to the left of landing on it";
    EXPECT_NEAR(north.X, -60.96, 1e-9);
    EXPECT_NEAR(north.Z, 300.0, 1e-9);
    runway.widthFeet = 76;
    runway.ends[0].name = "36R";
    correctThreshholdPosition(&runway, south, north);
    EXPECT_NEAR(south.X, 30.48, 1e-9);
    runway.ends[0].name = "36";
    correctThreshholdPosition(&runway, south, north);
    EXPECT_NEAR(south.X, 30.48, 1e-9);
}

TEST(AirportSketch, stripsAndFactor) {
    auto airport = withRunway(90, 5000, 100);
    airport.runways[0].surface = Runway::Grass;
    const AirportSketch sketch(airport);
    ASSERT_EQ(sketch.getStrips().size(), 1u);
    const auto& strip = sketch.getStrips()[0];
    EXPECT_FALSE(strip.isPlaceKnown);
    EXPECT_EQ(strip.surface, Runway::Grass);
    EXPECT_NEAR(strip.ends[0].X, -762.0, 1e-6);
    EXPECT_NEAR(strip.corners[0].Y, 15.24, 1e-6) << "left of the first end, landing east, is north";
    EXPECT_NEAR(strip.corners[2].X, 762.0, 1e-6);
    EXPECT_NEAR(strip.corners[2].Y, -15.24, 1e-6);
    EXPECT_NEAR(sketch.getHalfExtent().X, 762.0, 1e-6);
    EXPECT_NEAR(sketch.getHalfExtent().Y, 100.0, 1e-6);
    // 1524 m over nine tenths of 300 pixels, or 200 m over those of 20
    EXPECT_NEAR(sketch.getPositionFactor({300, 200}), 270.0 / 1524.0, 1e-9);
    EXPECT_NEAR(sketch.getPositionFactor({300, 20}), 18.0 / 200.0, 1e-9);
}

TEST(AirportSketch, knownThresholdsAreNotMoved) {
    auto airport = withRunway(0, 3000, 100);
    Runway& runway = airport.runways[0];
    runway.ends[0].name = "36L";
    runway.ends[0].isThresholdKnown = runway.ends[1].isThresholdKnown = true;
    runway.ends[0].threshold = {20.001, -0.005};
    runway.ends[1].threshold = {20.001, 0.005};
    const AirportSketch sketch(airport);
    EXPECT_TRUE(sketch.getStrips()[0].isPlaceKnown);
    EXPECT_NEAR(sketch.getStrips()[0].ends[0].X, 0.001 / degreesPerMetre, 1e-6);
    runway.ends[0].isThresholdKnown = runway.ends[1].isThresholdKnown = false;
    EXPECT_NEAR(AirportSketch(airport).getStrips()[0].ends[0].X, -91.44, 1e-6);
}

TEST(AirportSketch, withoutRunwaysOrWithImpossibleOnes) {
    EXPECT_GT(AirportSketch(AirportElement()).getPositionFactor({100, 100}), 0.0);
    auto airport = withRunway(0xffffffff, 0xffffffff, 0xffffffff);
    Runway& runway = airport.runways[0];
    runway.ends[0].isThresholdKnown = runway.ends[1].isThresholdKnown = true;
    const AirportSketch sketch(airport); // both thresholds on one spot
    EXPECT_GT(sketch.getPositionFactor({100, 100}), 0.0);
    EXPECT_EQ(sketch.getPositionFactor({0, 0}), 0.0);
}

} // namespace

} // namespace skyvane
