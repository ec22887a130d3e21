#include "chart/elements/AirwayElement.h"
#include "chart/elements/WaypointElement.h"
#include "chartmaker/xplane/AirwayFile.h"
#include "chartmaker/xplane/FixFile.h"
#include "tools/chartmaker/TestSink.h"

#include <gtest/gtest.h>

namespace skyvane {
namespace {

using Lines = std::vector<std::string>;

TEST(FixFile, readsRowsOfEachVersion) {
    TestSink sink;
    ASSERT_TRUE(readFixFile(chartmakerData("fix600.dat"), sink.context()));
    ASSERT_EQ(sink.elements.size(), 2u);
    EXPECT_EQ(sink.at<WaypointElement>(0).ident, "ALBAT");
    EXPECT_EQ(sink.at<WaypointElement>(0).position.longitude, -28.1);
    EXPECT_EQ(sink.refusals, Lines{"6: no fix of latitude, longitude and ident"});

    TestSink later;
    ASSERT_TRUE(readFixFile(chartmakerData("fix1101.dat"), later.context()));
    ASSERT_EQ(later.elements.size(), 4u);
    EXPECT_TRUE(later.at<WaypointElement>(0).use.lowAltitude && later.at<WaypointElement>(0).isPublic);
    EXPECT_TRUE(later.at<WaypointElement>(1).isReportingPoint); // type "V"
    EXPECT_FALSE(later.at<WaypointElement>(2).isPublic);        // type "U"
    EXPECT_FALSE(later.at<WaypointElement>(2).use.lowAltitude);
    EXPECT_EQ(later.at<WaypointElement>(2).remarks, "Fix of XSPM");
}

TEST(AirwayFile, placesEndsByTheirCoordinates) {
    TestSink sink;
    sink.points.add("ALBAT", {IChartElement::WAYPOINT, {-28.1004, 42.1}, "", 0, {}});
    ASSERT_TRUE(readAirwayFile(chartmakerData("awy640.dat"), sink.context()));
    ASSERT_EQ(sink.elements.size(), 2u);
    const auto& low = sink.at<AirwayElement>(0);
    EXPECT_EQ(low.start.longitude, -28.1);
    EXPECT_EQ(low.end.latitude, 42.0);
    EXPECT_EQ(low.name, "V1");
    EXPECT_TRUE(low.isLowAltitude && !low.isHighAltitude && !low.isOneDirection);
    EXPECT_EQ(low.minimumEnroute.feet, 3000);
    EXPECT_EQ(low.maximumAuthorised.feet, 14500);
    EXPECT_FALSE(low.minimumObstructionClearance.isAvailable);
    EXPECT_TRUE(sink.at<AirwayElement>(1).isHighAltitude);
    EXPECT_EQ(sink.points[0].use.bits(), 6); // low, by airways
    EXPECT_EQ(sink.refusals.size(), 1u);
}

TEST(AirwayFile, looksNamedEndsUpAndTakesThePairThatLiesTogether) {
    TestSink sink;
    sink.points.add("PUFIN", {IChartElement::WAYPOINT, {10.0, 10.0}, "XS", 0, {}}); // the same name far away
    sink.points.add("PUFIN", {IChartElement::WAYPOINT, {-28.7, 41.8}, "XS", 1, {}});
    sink.points.add("PUFIN", {IChartElement::WAYPOINT, {-28.2, 42.1}, "XT", 2, {}}); // of another region
    sink.points.add("ALBAT", {IChartElement::WAYPOINT, {-28.1, 42.1}, "XS", 3, {}});
    sink.points.add("MER", {IChartElement::NDB, {-28.7, 41.9}, "", 4, {}}); // another kind
    sink.points.add("MER", {IChartElement::VOR, {-28.6, 42.0}, "", 5, {}});
    ASSERT_TRUE(readAirwayFile(chartmakerData("awy1100.dat"), sink.context()));
    ASSERT_EQ(sink.elements.size(), 2u);
    EXPECT_EQ(sink.at<AirwayElement>(0).end.longitude, -28.7);
    const auto& oneWay = sink.at<AirwayElement>(1); // "B": flown from the second end to the first
    EXPECT_TRUE(oneWay.isOneDirection);
    EXPECT_EQ(oneWay.start.longitude, -28.6);
    EXPECT_EQ(oneWay.end.longitude, -28.7);
    EXPECT_EQ(sink.points[5].use.bits(), 5);
    EXPECT_EQ(sink.points[0].use.bits(), 0);
    EXPECT_EQ(sink.refusals, Lines{"6: no fixes or navaids near each other are known as ALBAT and XXXXX"});
}

TEST(NavFiles, areToldFromOthersAndFromCutOnes) {
    for (const char* text : {"", "X\n640 Version\n", "I\nwhat\n", "I\n123 Version\n", "I\n"}) {
        const TextFile file(text);
        TestSink sink;
        EXPECT_FALSE(readFixFile(file.path, sink.context())) << text;
        EXPECT_EQ(sink.refusals.size(), 1u) << text;
    }
    const TextFile cut("I\n640 Version\n42 -28 ALBAT\n");
    TestSink sink;
    EXPECT_TRUE(readFixFile(cut.path, sink.context()));
    EXPECT_EQ(sink.elements.size(), 1u);
    EXPECT_EQ(sink.warnings, Lines{"0: ends without a row 99: it may be cut"});
}

} // namespace
} // namespace skyvane
