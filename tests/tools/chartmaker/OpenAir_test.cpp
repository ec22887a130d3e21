#include "chartmaker/openair/ArcShape.h"
#include "chartmaker/openair/OpenAirAltitude.h"
#include "chartmaker/openair/OpenAirCoordinates.h"
#include "chartmaker/openair/OpenAirParser.h"
#include "tools/chartmaker/TestSink.h"

#include "chart/geodesy/GreatCircle.h"

#include <gtest/gtest.h>

namespace skyvane {
namespace {

std::string limitText(std::string_view text) {
    const auto limit = parseAirspaceLimit(text);
    if (!limit)
        return "?";
    const std::string feet = std::to_string(limit->feet) + (limit->isMsl ? " MSL" : " AGL");
    return limit->kind == AirspaceLimit::Surface     ? "SFC"
           : limit->kind == AirspaceLimit::Unlimited ? "UNL"
           : limit->kind == AirspaceLimit::Altitude  ? feet
                                                     : "FL " + feet;
}

TEST(OpenAirAltitude, readsAllFormsThatAreInUse) {
    const std::pair<const char*, const char*> forms[] = {
        {"SFC", "SFC"},
        {"gnd", "SFC"},
        {"0", "SFC"},
        {"0 ft AGL", "SFC"},
        {"0 MSL", "0 MSL"},
        {"UNLIM", "UNL"},
        {"Unlimited", "UNL"},
        {"FL95", "FL 9500 MSL"},
        {"FL 195 STD", "FL 19500 MSL"},
        {"2500", "2500 MSL"},
        {"2500ft", "2500 MSL"},
        {"2500 FT AMSL", "2500 MSL"},
        {"ALT 2500 ft", "2500 MSL"},
        {"2500FTMSL", "2500 MSL"},
        {"3000MSL", "3000 MSL"},
        {"1500 AGL", "1500 AGL"},
        {"1500ft GND", "1500 AGL"},
        {"1500 ASFC", "1500 AGL"},
        {"600m AMSL", "1969 MSL"},
        {"300M AGL", "984 AGL"},
        {"-100 ft MSL", "-100 MSL"},
        {"", "?"},
        {"Ask on 122.8", "?"},
        {"BY NOTAM", "?"},
        {"FL", "?"},
        {"FL 9999", "?"},
        {"FL 95 AGL", "?"},
        {"FL 95 / 2500 ft", "?"},
        {"1500 MSL AGL", "?"},
        {"SFC UNL", "?"},
        {"99999999", "?"},
        {"--5", "?"},
        {"2500 furlongs", "?"},
    };
    for (const auto& [text, meaning] : forms)
        EXPECT_EQ(limitText(text), meaning) << text;
}

TEST(OpenAirCoordinates, readsDegreesMinutesAndSeconds) {
    const char* const forms[] = {"42:07:30 N 028:15:00 W", "42:07:30N028:15:00W", "42:07.5 N, 028:15.0 W",
                                 "42.125N 28.25W", "42 07 30 n 28 15 00 w"};
    for (std::string_view text : forms) {
        const auto position = takeCoordinates(text);
        ASSERT_TRUE(position) << text;
        EXPECT_NEAR(position->latitude, 42.125, 1e-9);
        EXPECT_NEAR(position->longitude, -28.25, 1e-9);
        EXPECT_EQ(text, "");
    }
    for (std::string_view text : {"", "42:07:30", "42:07:30 N", "42:61:00 N 28:00:00 W", "91:00 N 28:00 W",
                                  "42:1:2:3 N 1 W", "42:07:30 N 181:00:00 W", "42,5 N 28 W", "N 42:07 W 28:15"}) {
        const std::string_view before = text;
        EXPECT_FALSE(takeCoordinates(text)) << before;
        EXPECT_EQ(text, before);
    }
}

TEST(ArcShape, staysWithinItsTolerance) {
    for (const ChartPosition centre :
         {ChartPosition(-28.5, 42.0), ChartPosition(179.99, -60.0), ChartPosition(10.0, 89.0)})
        for (const double radius : {50.0, 9260.0, 200000.0}) {
            std::vector<ChartPosition> circle;
            appendCircle(centre, radius, circle);
            for (size_t i = 0; i < circle.size(); ++i) {
                const auto a = calcVectorFromChartPositionf64(circle[i].longitude, circle[i].latitude);
                const ChartPosition& next = circle[(i + 1) % circle.size()];
                const auto b = calcVectorFromChartPositionf64(next.longitude, next.latitude);
                const auto c = calcVectorFromChartPositionf64(centre.longitude, centre.latitude);
                EXPECT_NEAR(calcDistance(a, c), radius, radius * 1e-6 + 0.3);
                EXPECT_GT(calcDistance(a + b, c), radius - ArcToleranceMetres - 0.3);
            }
        }
}

TEST(ArcShape, goesRoundInTheSenseThatIsAskedFor) {
    const ChartPosition centre(-28.5, 42.0);
    std::vector<ChartPosition> arc;
    appendArc(centre, 5000.0, {350.0, 20.0, true}, arc);
    for (const ChartPosition& vertex : arc)
        EXPECT_GT(vertex.latitude, centre.latitude);
    EXPECT_NEAR(calcBearing2(centre, arc.front()), 350.0, 0.1);
    EXPECT_NEAR(calcBearing2(centre, arc.back()), 20.0, 0.1);

    arc.clear();
    appendArc(centre, 5000.0, {350.0, 20.0, false}, arc);
    EXPECT_GT(arc.size(), 20u);
    EXPECT_NEAR(calcBearing2(centre, arc[arc.size() / 2]), 185.0, 5.0);

    arc.clear();
    appendArcBetween(centre, {-28.4, 42.0}, {-28.5, 41.9}, true, arc);
    EXPECT_NEAR(calcBearing2(centre, arc[arc.size() / 2]), 135.0, 5.0);
    EXPECT_EQ(arc.front().longitude, -28.4);
    EXPECT_EQ(arc.back().latitude, 41.9);
}

TEST(OpenAir, readsTheAirspacesOfAFile) {
    TestSink sink;
    ASSERT_TRUE(readOpenAir(chartmakerData("airspaces.txt"), sink.context()));
    ASSERT_EQ(sink.elements.size(), 5u);

    const auto& zone = sink.at<AirspaceElement>(0);
    EXPECT_EQ(zone.getIndicatedLabel(true, false), "Class: D\n[SFC - 3500 MSL]\nPort Meridian CTR");
    EXPECT_EQ(zone.remarks, "118.305 Meridian Tower\nType: CTR");
    for (const ChartPosition& vertex : zone.vertices)
        EXPECT_NEAR(calcDistance2({-28.5, 42.0}, vertex), 9260.0, 10.0);

    const auto& half = sink.at<AirspaceElement>(1);
    EXPECT_EQ(half.getIndicatedLabel(true, false), "Class: RA\n[500 AGL - 9500 MSL]\nGannet Cliffs");
    EXPECT_EQ(half.remarks, "Ceiling: FL95");
    for (const ChartPosition& vertex : half.vertices)
        EXPECT_GE(vertex.longitude, -28.0 - 1e-9);

    const auto& quarter = sink.at<AirspaceElement>(2);
    EXPECT_EQ(quarter.getIndicatedLabel(true, false), "Class: DA\n[1000 MSL - UNL]\nKittiwake Range");
    for (const ChartPosition& vertex : quarter.vertices)
        EXPECT_TRUE(vertex.longitude >= -29.0 - 1e-6 && vertex.latitude >= 41.5 - 1e-6);

    EXPECT_EQ(sink.at<AirspaceElement>(3).vertices.size(), 3u); // the closing one is left out
    EXPECT_EQ(sink.at<AirspaceElement>(4).bottomFeet, AirspaceElement::Unlimited);
    EXPECT_EQ(sink.at<AirspaceElement>(4).remarks, "Floor: Ask on 122.8");
    ASSERT_EQ(sink.warnings.size(), 1u);
    EXPECT_EQ(sink.warnings[0], "39: the floor \"Ask on 122.8\" isn't understood: taken as the surface");
    ASSERT_EQ(sink.refusals.size(), 1u);
    EXPECT_EQ(sink.refusals[0], "51: \"Broken\": no coordinates: 41:61:00 N 028:40:00 W");
}

TEST(OpenAir, refusesWhatItCannotDrawAndReadsOn) {
    const TextFile file(
        "DP 42:00 N 28:00 W\nAC R\nAN No centre\nAL SFC\nAH FL 95\nDC 5\nAC R\nAN Two corners\n"
        "DP 42:00 N 28:00 W\nDP 42:10 N 28:00 W\nXY what\nAC R\nAN Corridor\nDY 42:00 N 28:00 W\n"
        "TO Ridge\nDP 42:00 N 28:00 W\nAC A\nAN L\xf6wen\nAL FL 100\nAH 2000 MSL\nV X=42:00 N 28:00 W\nDC 1\n");
    TestSink sink;
    ASSERT_TRUE(readOpenAir(file.path, sink.context()));
    ASSERT_EQ(sink.elements.size(), 1u);
    EXPECT_EQ(sink.at<AirspaceElement>(0).name, "L\xc3\xb6wen");
    const std::vector<std::string> refusals{"1: belongs to no airspace: DP 42:00 N 28:00 W",
                                            "6: \"No centre\": an arc or circle without a centre (V X=...)",
                                            "11: no record of OpenAir: XY what",
                                            "7: \"Two corners\": has fewer than three vertices",
                                            "14: \"Corridor\": is the corridor of an airway (DY): airways come from "
                                            "their own files",
                                            "15: terrain isn't taken from airspace files"};
    EXPECT_EQ(sink.refusals, refusals);
    EXPECT_EQ(sink.warnings, std::vector<std::string>{"17: the floor lies above the ceiling"});
}

} // namespace
} // namespace skyvane
