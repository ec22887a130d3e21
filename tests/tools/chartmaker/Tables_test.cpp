#include "chart/elements/AirportElement.h"
#include "chart/elements/NDBElement.h"
#include "chart/elements/ObstructionElement.h"
#include "chart/elements/VORElement.h"
#include "chart/elements/WaypointElement.h"
#include "chart/geodesy/GreatCircle.h"
#include "chartmaker/csv/OurAirports.h"
#include "chartmaker/csv/Surfaces.h"
#include "chartmaker/obstacles/ObstacleFile.h"
#include "chartmaker/text/SourceText.h"
#include "tools/chartmaker/TestSink.h"

#include "chartmaker/csv/CsvReader.h"

#include <gtest/gtest.h>
#include <zlib.h>

namespace skyvane {
namespace {

using Values = std::vector<std::string>;

TEST(LineReader, readsPlainAndPackedFilesAlikeAndTellsWhenOneIsCut) {
    std::string text = "\xef\xbb\xbf"
                       "first\r\n\nthird";
    const TextFile plain(text), packed(""), cut("");
    gzFile file = gzopen(packed.path.c_str(), "wb");
    gzwrite(file, text.data(), static_cast<unsigned>(text.size()));
    gzclose(file);
    std::ifstream in(packed.path, std::ios::binary);
    const std::string bytes((std::istreambuf_iterator<char>(in)), {});
    std::ofstream(cut.path, std::ios::binary) << bytes.substr(0, bytes.size() - 9);
    for (const std::string& path : {plain.path, packed.path}) {
        LineReader lines(path);
        std::string read;
        for (std::string_view line; lines.next(line);)
            read += std::string(line) + "|";
        EXPECT_EQ(read, "first||third|");
        EXPECT_EQ(lines.getLineNumber(), 3);
        EXPECT_EQ(lines.getError(), "");
    }
    LineReader lines(cut.path), missing("/nowhere/at all");
    std::string_view line;
    while (lines.next(line)) {
    }
    EXPECT_NE(lines.getError(), "");
    EXPECT_FALSE(missing.next(line));
    EXPECT_EQ(missing.getError(), "can't be opened");
}

TEST(CsvReader, splitsQuotedValuesAndKeepsTheNumbersOfLines) {
    const TextFile file("a,\"b, \"\"c\"\"\",\n\"two\nlines\",x\n\"open,1\nnext,2\n");
    LineReader lines(file.path);
    CsvReader csv(lines);
    ASSERT_TRUE(csv.next());
    EXPECT_EQ(csv.getValues(), (Values{"a", "b, \"c\"", ""}));
    ASSERT_TRUE(csv.next());
    EXPECT_EQ(csv.getValues(), (Values{"two\nlines", "x"}));
    ASSERT_TRUE(csv.next());
    EXPECT_TRUE(csv.isBroken());
    EXPECT_EQ(csv.getLineNumber(), 4);
    ASSERT_TRUE(csv.next()); // what the open quote had swallowed
    EXPECT_FALSE(csv.isBroken());
    EXPECT_EQ(csv.getValues(), (Values{"next", "2"}));
    EXPECT_EQ(csv.getLineNumber(), 5);
    EXPECT_FALSE(csv.next());
}

TEST(SourceText, ofWindowsKeepsItsQuotesAndDashes) {
    EXPECT_EQ(cleanText("L\x92\xe9t\xe9 \x96 \x81"), "L\u2019\u00e9t\u00e9 \u2013 ?");
    EXPECT_EQ(cleanText("L\u2019\u00e9t\u00e9"), "L\u2019\u00e9t\u00e9");
}

TEST(CsvTable, refusesALineThatTheEndOfTheFileHasCut) {
    const std::string head = "latitude_deg,longitude_deg,altitude_msl_ft,remarks\n42.1,-28.1,500,\n";
    const std::pair<std::string, Values> forms[] = {
        {head + "42.2,-28.2,12", {"3: the file ends inside of this line: it may be cut"}},
        {head + "42.2,-28.2,12\n", {}},
        {head + "42.2,-28.2,1250,mast", {}},
        {std::string("\xff\xfel\0a\0", 6), {"0: is text in UTF-16: save it as UTF-8"}},
        {"latitude_deg;longitude_deg\n1;2\n", {"1: semicolons part its values: save it as comma-separated ones"}},
    };
    for (const auto& [text, refusals] : forms) {
        const TextFile file(text);
        TestSink sink;
        readObstacleFile(file.path, sink.context());
        EXPECT_EQ(sink.refusals, refusals) << text;
    }
}

TEST(Surfaces, goByTheFirstWordThatIsKnown) {
    const std::pair<const char*, Runway::Surface> forms[] = {
        {"ASPH-G", Runway::Solid},      {"asphalt/concrete", Runway::Solid},   {"ASPH-P", Runway::Cracked},
        {"Grass / sod", Runway::Grass}, {"TURF-GRVL", Runway::Grass},          {"Grassed brown clay", Runway::Grass},
        {"WATER-E", Runway::Water},     {"GRVL-TURF", Runway::UnknownSurface}, {"", Runway::UnknownSurface},
        {"X", Runway::UnknownSurface},
    };
    for (const auto& [text, surface] : forms)
        EXPECT_EQ(readSurface(text), surface) << text;
}

TEST(OurAirports, joinsRunwaysAndFrequencies) {
    TestSink sink;
    ASSERT_TRUE(readOurAirports(chartmakerData("tables"), sink.context()));
    ASSERT_EQ(sink.elements.size(), 9u);
    const auto& port = sink.at<AirportElement>(0);
    EXPECT_EQ(port.getIndicatedLabel(true, false), "XSPM - Port Meridian Airport - Airport");
    EXPECT_EQ(port.remarks, "Port Meridian\nIATA code: PMX\nRWY 27: threshold displaced 1000 ft\n"
                            "RWY 18/36 surface: Gravel\nRWY 04/22 closed");
    EXPECT_TRUE(port.isTowered);
    EXPECT_EQ(port.frequencies.at("TWR Meridian Tower"), (std::vector<Frequency>{{118, 305}, {118, 700}}));
    EXPECT_EQ(port.frequencies.at("ATIS").front(), (Frequency{127, 100}));
    ASSERT_EQ(port.runways.size(), 2u);
    const Runway &main = port.runways[0], &strip = port.runways[1];
    EXPECT_EQ(main.surface, Runway::Solid);
    EXPECT_EQ(main.directionDegrees, 90u);
    EXPECT_NEAR(calcDistance2(main.ends[1].threshold, {-28.488, 42.0}), 304.8, 0.5);
    EXPECT_LT(main.ends[1].threshold.longitude, -28.488);
    EXPECT_EQ(main.ends[0].threshold.longitude, -28.51);
    EXPECT_EQ(strip.directionDegrees, 180u); // from its name
    EXPECT_FALSE(strip.ends[0].isThresholdKnown);

    const auto& field = sink.at<AirportElement>(1);
    EXPECT_EQ(field.ident, "GF1");
    EXPECT_EQ(field.name, "Gannet \"Old\" Field, North");
    EXPECT_EQ(field.elevationFeet, AirportElement::UnknownElevation);
    EXPECT_EQ(field.runways.at(0).surface, Runway::Cracked);
    EXPECT_FALSE(field.runways[0].ends[0].isThresholdKnown); // ten degrees away
    EXPECT_EQ(field.runways.at(1).getEndLabel(1), "ALL");    // not after a direction that nobody knows
    const auto& heliport = sink.at<AirportElement>(2);
    EXPECT_TRUE(heliport.isHeliport && heliport.runways.empty());
    EXPECT_EQ(heliport.remarks, "Port Meridian\nHelipad H1: 80 x 80 ft, CONC");
    EXPECT_TRUE(sink.at<AirportElement>(4).isMilitary);
}

TEST(OurAirports, readsNavaids) {
    TestSink sink;
    ASSERT_TRUE(readOurAirports(chartmakerData("tables"), sink.context()));
    const auto& vor = sink.at<VORElement>(6);
    EXPECT_EQ(vor.getIndicatedLabel(true, false), "MER - Meridian - VORDME");
    EXPECT_EQ(vor.frequency, (Frequency{113, 900}));
    EXPECT_EQ(vor.magneticVariationDegrees, -8.0f); // what it is set to
    EXPECT_EQ(vor.use.bits(), 3);
    const auto& ndb = sink.at<NDBElement>(7);
    EXPECT_EQ(ndb.frequencyKilohertz, 350);
    EXPECT_EQ(ndb.magneticVariationDegrees, UnknownVariation);
    EXPECT_EQ(sink.at<WaypointElement>(8).remarks, "Gannet\nDME channel 040X (110.30 MHz)");
}

TEST(OurAirports, tellsWhatIsWrongWithALine) {
    TestSink sink;
    ASSERT_TRUE(readOurAirports(chartmakerData("tables"), sink.context()));
    EXPECT_EQ(sink.refusals,
              (Values{"5: no frequency of an aviation radio: 1187.0 MHz", "6: no position: 95.0, -28.5",
                      "8: a quote isn't closed", "8: a runway of \"XS99\", which is no airport of the table",
                      "6: no kind of navaid: \"FAN\""}));
    EXPECT_EQ(sink.warnings, Values{"6: a threshold far from GF1: taken as unknown"});

    TestSink other;
    EXPECT_FALSE(readOurAirports("/nowhere", other.context()));
    EXPECT_FALSE(readObstacleFile(chartmakerData("tables/airports.csv"), other.context()));
    EXPECT_EQ(other.refusals, Values{"1: the first line names no column \"altitude_msl_ft\""});
}

TEST(Obstacles, areReadFromBothTables) {
    TestSink sink;
    ASSERT_TRUE(readObstacleFile(chartmakerData("obstacles.csv"), sink.context()));
    ASSERT_EQ(sink.elements.size(), 3u);
    const auto& mast = sink.at<ObstructionElement>(0);
    EXPECT_EQ(mast.altitudeMslFeet, 812);
    EXPECT_EQ(mast.heightAglFeet, 310);
    EXPECT_TRUE(mast.hasKnownLighting && mast.hasAccuratePosition && !mast.isGroup);
    EXPECT_EQ(mast.remarks, "Mast, Port Meridian");
    EXPECT_EQ(sink.refusals, Values{"5: no altitude of its top: \"\""});

    TestSink faa;
    ASSERT_TRUE(readObstacleFile(chartmakerData("dof.csv"), faa.context()));
    ASSERT_EQ(faa.elements.size(), 2u);
    EXPECT_TRUE(faa.at<ObstructionElement>(0).hasKnownLighting);
    EXPECT_TRUE(faa.at<ObstructionElement>(1).isGroup);
    EXPECT_FALSE(faa.at<ObstructionElement>(1).hasAccuratePosition);
    EXPECT_EQ(faa.at<ObstructionElement>(1).remarks, "WINDMILL\n99-000002");
    EXPECT_EQ(faa.refusals, Values{"4: is dismantled"});
}

} // namespace
} // namespace skyvane
