#include "chart/geodesy/GlidePath.h"
#include "chart/geodesy/Headings.h"

#include <gtest/gtest.h>
#include <set>

namespace skyvane {
namespace {

TEST(Headings, followTheForwardVector) {
    using Vector = irr::core::vector3d<double>;
    const Vector up(0, 1, 0);
    EXPECT_NEAR(CalcHeading(Vector(0, 0, 1), up), 0.0, 1e-12);
    EXPECT_NEAR(CalcHeading(Vector(1, 0.5, 0), up), 90.0, 1e-6);
    EXPECT_NEAR(CalcHeading(Vector(0, 0, -1), up), 180.0, 1e-6);
    EXPECT_NEAR(CalcHeading(Vector(-1, 0, 1), up), 315.0, 1e-6);
    EXPECT_EQ(CalcHeading(up, Vector(0, 0, -1)), 0.0);
}

TEST(Headings, labelRunways) {
    EXPECT_EQ(dir2Label(0.0f), "36");
    EXPECT_EQ(dir2Label(4.99f), "36");
    EXPECT_EQ(dir2Label(5.0f), "01");
    EXPECT_EQ(dir2Label(94.9f), "09");
    EXPECT_EQ(dir2Label(95.0f), "10");
    EXPECT_EQ(dir2Label(355.0f), "36");
    EXPECT_EQ(dir2Label(354.9f), "35");
    EXPECT_EQ(dir2Label(-90.0f), "27");
    EXPECT_EQ(dir2Label(540.0f), "18");
    EXPECT_EQ(dir2Label(1e30f / 1e-30f), "");
}

TEST(GlidePath, pairsFortyChannels) {
    std::set<unsigned long> paired;
    for (unsigned long hertz = 107000000; hertz <= 118000000; hertz += 50000) {
        const unsigned long glidePath = getGlideSlopeFrequency(hertz);
        const bool localizer = hertz >= 108100000 && hertz <= 111950000 && hertz / 100000 % 2 == 1;
        EXPECT_EQ(glidePath != 0, localizer) << hertz;
        if (!glidePath)
            continue;
        EXPECT_TRUE(paired.insert(glidePath).second) << hertz;
        // The X channels of 50 kHz more are paired 150 kHz lower.
        if (hertz % 100000 == 0) {
            EXPECT_EQ(getGlideSlopeFrequency(hertz + 50000), glidePath - 150000) << hertz;
        }
    }
    std::set<unsigned long> band;
    for (unsigned long hertz = 329150000; hertz <= 335000000; hertz += 150000)
        band.insert(hertz);
    EXPECT_EQ(paired, band) << "every channel of the band, once";
    EXPECT_EQ(getGlideSlopeFrequency(110300000), 335000000ul);
    EXPECT_EQ(getGlideSlopeFrequency(109500999), 332600000ul) << "fractions of a kilohertz";
    EXPECT_EQ(getGlideSlopeFrequency(110301000), 0ul);
}

} // namespace
} // namespace skyvane
