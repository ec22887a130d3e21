#include "chart/elements/AirspaceElement.h"
#include "chart/elements/GroundGeometryElement.h"
#include "chart/elements/Runway.h"
#include "displays/mapmath/elements/AirspaceStyles.h"
#include "displays/mapmath/elements/GroundStyles.h"
#include "displays/mapmath/elements/RunwayShapes.h"

#include <gtest/gtest.h>

namespace skyvane {
namespace {

TEST(AirspaceStyles, classesHaveTheirLook) {
    EXPECT_EQ(airspaceStyle("CTR").argb, 0xfff700f7u);
    EXPECT_EQ(airspaceStyle("D").widthFactor, 1.5f);
    EXPECT_EQ(airspaceStyle("AWY").bandFactor, 2.5f);
    EXPECT_EQ(airspaceStyle("NSA").widthFactor, 2.14f);
    EXPECT_EQ(airspaceStyle("no such class").argb, 0xffffffffu);
    EXPECT_GT(airspaceStyle("PA").priority, airspaceStyle("E").priority);
    for (const char* name : {"", "A", "CTR", "Border", "PA", "TP"}) { // between airways and marks
        EXPECT_GT(airspaceStyle(name).priority, 400);
        EXPECT_LT(airspaceStyle(name).priority, 600);
    }
}

TEST(AirspaceStyles, smallAndLowOnesAreMeant) {
    EXPECT_EQ(airspaceSelectPriority("A", 0.0, 0), 100100);
    EXPECT_EQ(airspaceSelectPriority("D", 25e6, 0), 95103); // 5 km
    EXPECT_EQ(airspaceSelectPriority("D", 25e6, 4000), 95093);
    EXPECT_EQ(airspaceSelectPriority("PA", 25e6, AirspaceElement::Unlimited), 95110); // letters count to ten
    EXPECT_EQ(airspaceSelectPriority("FIR", 1e12, 60000), 5);
    EXPECT_EQ(airspaceSelectPriority("", -1.0, 0), 100100);
    EXPECT_GT(airspaceSelectPriority("D", 25e6, 30000), airspaceSelectPriority("A", 49e6, 0));
}

TEST(AirspaceStyles, limitsAsText) {
    AirspaceElement airspace;
    airspace.airspaceClass = "D";
    airspace.bottomFeet = 1000;
    airspace.isBottomMsl = false;
    airspace.topFeet = 4500;
    EXPECT_EQ(airspaceLimits(airspace, false), "1000 AGL - 4500");
    airspace.bottomFeet = 0;
    airspace.topFeet = AirspaceElement::Unlimited;
    EXPECT_EQ(airspaceLimits(airspace, false), "SFC - UNL");
    airspace.isBottomMsl = true;
    airspace.topFeet = 3281;
    EXPECT_EQ(airspaceLimits(airspace, true), "0 - 1000");
    airspace.airspaceClass = AirspaceElement::TrafficPatternClass;
    EXPECT_EQ(airspaceLimits(airspace, true), "1000");
}

TEST(GroundStyles, orderOfDrawingAndChoosing) {
    const auto lake = groundPriority(13), road = groundPriority(9), taxiway = groundPriority(1),
               builtUp = groundPriority(20);
    EXPECT_LT(builtUp, lake);
    EXPECT_LT(lake, road);
    EXPECT_LT(road, taxiway);
    for (uint8_t feature = 0; feature <= GroundGeometryElement::OtherFeature; ++feature) {
        EXPECT_LE(groundPriority(feature), 300); // below obstacles
        EXPECT_GE(groundPriority(feature), 200);
        EXPECT_EQ(groundSelectPriority(feature) > 100000, feature >= 9 && feature <= 18) << int(feature);
    }
    EXPECT_EQ(groundStyle(200).line, groundStyle(20).line); // unknown features are others
}

TEST(RunwayLooks, symbolsBySurface) {
    EXPECT_EQ(runwayLook(Runway::Water).symbol, 0xff0000ffu);
    EXPECT_EQ(runwayLook(Runway::Grass).symbol, 0xff008000u);
    EXPECT_EQ(runwayLook(Runway::Solid).symbol, 0xff000000u);
    EXPECT_EQ(runwayLook(Runway::Cracked).symbol, 0xff784600u);
    EXPECT_EQ(runwayLook(4000).fill, runwayLook(Runway::UnknownSurface).fill);
}

} // namespace
} // namespace skyvane
