#include "chart/geodesy/Barometry.h"

#include <gtest/gtest.h>

namespace skyvane {
namespace {

TEST(Barometry, agreesWithTheStandardAtmosphere) {
    EXPECT_EQ(calcAltitudeFromPressure(1013.25, 1013.25), 0.0);
    // Table values of the standard atmosphere; the short formula is good for a few metres there.
    EXPECT_NEAR(calcAltitudeFromPressure(898.75, 1013.25), 1000.0, 2.0);
    EXPECT_NEAR(calcAltitudeFromPressure(540.20, 1013.25), 5000.0, 5.0);
    EXPECT_NEAR(calcSeaLevelPressure(1000.0, 898.75), 1013.25, 0.3);
}

TEST(Barometry, seaLevelPressureUndoesTheAltitude) {
    for (double pressure = 300.0; pressure < 1050.0; pressure += 50.0)
        EXPECT_NEAR(calcSeaLevelPressure(calcAltitudeFromPressure(pressure, 1020.0), pressure), 1020.0, 1e-9);
}

TEST(Barometry, pressureOfAnAltitudeIsTheOtherWayRound) {
    for (double altitude = -500.0; altitude < 11000.0; altitude += 500.0) {
        const double pressure = calcPressureFromAltitude(altitude, 1002.0);
        EXPECT_NEAR(calcAltitudeFromPressure(pressure, 1002.0), altitude, 1e-6);
        EXPECT_NEAR(calcSeaLevelPressure(altitude, pressure), 1002.0, 1e-9);
    }
}

TEST(Barometry, settingTheAltimeterMovesIt) {
    EXPECT_NEAR(convertPressureAltitude2MSL(3000.0, 1013.25), 3000.0, 1e-6);
    // A hectopascal is 27 ft at sea level, more further up.
    EXPECT_NEAR(convertPressureAltitude2MSL(0.0, 1014.25), 8.3, 0.1);
    EXPECT_NEAR(convertPressureAltitude2MSL(0.0, 1003.25), -83.5, 1.0);
}

} // namespace
} // namespace skyvane
