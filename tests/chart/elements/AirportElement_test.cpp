#include "chart/elements/AirportElement.h"
#include "chart/elements/GoldenRecords.h"
#include "chart/elements/MarkElement.h"
#include "core/ini/IniFile.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace skyvane {

namespace {

using testing::ElementsAre;

std::vector<std::string> namesOf(const AirportElement& airport) {
    std::vector<std::string> names;
    for (int i = 0; i < airport.getTrieInsertionNameCount(); ++i)
        names.push_back(airport.getTrieInsertionName(i));
    return names;
}

AirportElement named(const std::string& ident, const std::string& name) {
    AirportElement airport;
    airport.ident = ident;
    airport.name = name;
    return airport;
}

TEST(AirportElement, fields) {
    const auto airport = goldenElement<AirportElement>();
    EXPECT_EQ(airport.position.latitude, 42.5);
    EXPECT_EQ(airport.elevationFeet, 2625);
    EXPECT_TRUE(airport.isClosed && airport.isPrivate && airport.isTowered);
    EXPECT_FALSE(airport.isHeliport || airport.hasGliders || airport.isMilitary);
    EXPECT_EQ(airport.getAccuracy(), 2);
    ASSERT_EQ(airport.runways.size(), 1u);
    const Runway& runway = airport.runways[0];
    EXPECT_EQ(runway.surface, Runway::Grass);
    EXPECT_EQ(runway.ends[0].threshold.longitude, 1.5) << "longitude first";
    EXPECT_EQ(runway.ends[0].threshold.latitude, 42.5);
    EXPECT_FALSE(runway.ends[1].isThresholdKnown);
    EXPECT_EQ(runway.ends[0].elevationFeet, 2600);
    EXPECT_EQ(runway.ends[0].slopeDegrees, 2.5f);
    EXPECT_EQ(runway.getAccuracy(), 1);
    EXPECT_EQ(airport.getComFrequencies(),
              (FrequencyMap{{"INFO ", {}}, {"TWR", {Frequency{118, 275}, Frequency{121, 500}}}}));
    EXPECT_EQ(airport.getNavFrequencies(), (FrequencyMap{{"RWY 03L ILS", {Frequency{110, 300}}}}));
}

TEST(AirportElement, staticBits) {
    auto airport = goldenElement<AirportElement>();
    EXPECT_EQ(staticDataOf(airport), bytesOf("07 15 00"));
    airport.runways.clear();
    EXPECT_EQ(staticDataOf(airport), bytesOf("07 55 00"));
    airport.isHeliport = airport.hasGliders = airport.isMilitary = true;
    EXPECT_EQ(staticDataOf(airport), bytesOf("07 7F 00"));
}

TEST(AirportElement, endLabels) {
    Runway runway;
    EXPECT_EQ(runway.getEndLabel(0), "36");
    EXPECT_EQ(runway.getEndLabel(1), "18");
    runway.directionDegrees = 93;
    EXPECT_EQ(runway.getEndLabel(0), "09");
    EXPECT_EQ(runway.getEndLabel(1), "27");
    runway.directionDegrees = 0xffffffff;
    EXPECT_EQ(runway.getEndLabel(0).size(), 2u);
    runway.ends[1].name = "27R";
    EXPECT_EQ(runway.getEndLabel(1), "27R");
}

TEST(AirportElement, labels) {
    EXPECT_EQ(named("LESU", "La Seu").getIndicatedLabel(false, false), "LESU");
    EXPECT_EQ(named("LESU", "La Seu").getIndicatedLabel(true, false), "LESU - La Seu - Airport");
    auto heliport = named("", "Roof");
    heliport.isHeliport = true;
    EXPECT_EQ(heliport.getIndicatedLabel(true, false), "Roof - Heliport");
}

TEST(AirportElement, indexNames) {
    EXPECT_THAT(namesOf(named("LESU", "Andorra-Seu")), ElementsAre("LESU", "Andorra-Seu", "Andorra", "Seu"));
    EXPECT_THAT(namesOf(named("", "Field")), ElementsAre("Field")) << "each once";
    EXPECT_THAT(namesOf(named("ABC", "abc")), ElementsAre("ABC")) << "the index knows upper case only";
    EXPECT_THAT(namesOf(named("", "")), ElementsAre());
    EXPECT_THAT(namesOf(named("X", "A B\tCD E")), ElementsAre("X", "A B\tCD E", "CD", "E"))
        << "a word of one letter only at the end";
    EXPECT_THAT(namesOf(named("K-1", "St. Mary's (old)")),
                ElementsAre("K-1", "St. Mary's (old)", "1", "St", "Mary", "old"));
    EXPECT_THAT(namesOf(named("Q", "Genève!é")), ElementsAre("Q", "Genève!é"));

    auto airport = named("A1", "One");
    EXPECT_THAT(namesOf(airport), ElementsAre("A1", "One"));
    airport.name = "Two";
    EXPECT_THAT(namesOf(airport), ElementsAre("A1", "Two")) << "changed with the element";
    EXPECT_EQ(airport.getTrieInsertionName(2), "");
    EXPECT_EQ(airport.getTrieInsertionName(-1), "");
}

TEST(AirportElement, equality) {
    constexpr double degreesPerMetre = 1.0 / 111194.940345393;
    struct Case {
        const char* identA;
        const char* identB;
        const char* nameA;
        int kindA; // bit 0 heliport, bit 1 closed
        int kindB;
        double metres;
        bool equal;
    };
    for (const Case& c : {
             Case{"LESU", "LESU", "x", 0, 0, 2999.0, true},
             Case{"LESU", "LESU", "x", 0, 0, 3001.0, false},
             Case{"", "", "x", 0, 0, 1499.0, true},
             Case{"", "", "x", 0, 0, 1501.0, false},
             Case{"", "LESU", "x", 0, 0, 1499.0, true},
             Case{"", "LESU", "", 0, 0, 1499.0, false},
             Case{"LESU", "", "x", 0, 0, 100.0, false},
             Case{"LESU", "LEDA", "x", 0, 0, 10.0, false},
             Case{"LESU", "LESU", "x", 0, 1, 10.0, false},
             Case{"LESU", "LESU", "x", 2, 0, 10.0, false},
             Case{"LESU", "LESU", "x", 2, 2, 10.0, true},
             Case{"H", "H", "x", 1, 1, 99.0, true},
             Case{"H", "H", "x", 1, 1, 101.0, false},
             Case{"H", "H", "x", 1, 3, 99.0, true},
             Case{"", "H", "x", 1, 1, 10.0, false},
         }) {
        auto a = named(c.identA, c.nameA);
        auto b = named(c.identB, "other");
        a.isHeliport = c.kindA & 1;
        a.isClosed = c.kindA & 2;
        b.isHeliport = c.kindB & 1;
        b.isClosed = c.kindB & 2;
        b.position.latitude = c.metres * degreesPerMetre;
        EXPECT_EQ(a.equals(&b), c.equal) << c.identA << '/' << c.identB << ' ' << c.metres;
    }
    EXPECT_FALSE(named("A", "A").equals(nullptr));
    const MarkElement mark;
    EXPECT_FALSE(named("A", "A").equals(&mark));
}

TEST(AirportElement, mergeTakesWhatIsMissing) {
    auto poor = named("LESU", "");
    poor.frequencies["TWR"] = {Frequency{118, 275}};
    poor.frequencies["ATIS"] = {Frequency{120, 0}};
    const auto rich = goldenElement<AirportElement>();
    poor.merge(&rich);
    EXPECT_EQ(poor.elevationFeet, 2625);
    EXPECT_EQ(poor.accuracy, 2);
    EXPECT_EQ(poor.name, "Andorra - La Se");
    EXPECT_EQ(poor.fuel, "100LL");
    EXPECT_EQ(poor.remarks, "rem");
    EXPECT_EQ(poor.frequencies,
              (FrequencyMap{
                  {"ATIS", {Frequency{120, 0}}}, {"INFO ", {}}, {"TWR", {Frequency{118, 275}, Frequency{121, 500}}}}));
    const std::string once = recordOf(poor);
    poor.merge(&rich);
    EXPECT_EQ(recordOf(poor), once) << "a second time adds nothing";

    auto full = goldenElement<AirportElement>();
    poor.elevationFeet = 1;
    poor.accuracy = 3;
    poor.fuel = "none";
    full.merge(&poor);
    EXPECT_EQ(full.elevationFeet, 2625);
    EXPECT_EQ(full.accuracy, 2);
    EXPECT_EQ(full.fuel, "100LL");
}

TEST(AirportElement, olderSectionsOfADocumentGo) {
    auto airport = goldenElement<AirportElement>();
    airport.runways.resize(3);
    IniFile document;
    airport.writeToIni(&document);
    EXPECT_TRUE(document.isSectionAvailable("Run2"));
    airport.runways.resize(1);
    airport.frequencies.clear();
    airport.writeToIni(&document);
    EXPECT_TRUE(document.isSectionAvailable("Run0"));
    EXPECT_FALSE(document.isSectionAvailable("Run1") || document.isSectionAvailable("Freq0"));
}

TEST(AirportElement, documentsOfTheEditor) {
    IniFile document;
    document.setFromString("FreqCnt = 2\nRunCnt = 1\n[Run0]\nType = SHINY\nEle0 = 1200\nLong0 = 1\nLat0 = \nLong1 = "
                           "x\nLat1 = 2\nTP0 = 1\n[Freq0]\nName = TWR\nCount = 1\nMHZ0 = 118\nKHZ0 = 5\n"
                           "[Freq1]\nName = TWR\nCount = 9\nMHZ0 = 119\nKHZ0 = 6\n");
    AirportElement airport;
    airport.setFromIni(&document);
    ASSERT_EQ(airport.runways.size(), 1u);
    const Runway& runway = airport.runways[0];
    EXPECT_EQ(runway.surface, Runway::UnknownSurface);
    EXPECT_TRUE(runway.ends[0].isElevationKnown);
    EXPECT_FALSE(runway.ends[0].isThresholdKnown) << "half a position is none";
    EXPECT_FALSE(runway.ends[1].isThresholdKnown);
    EXPECT_EQ(runway.ends[0].trafficPattern, Runway::LeftPattern);
    EXPECT_EQ(runway.ends[1].trafficPattern, Runway::UnknownPattern);
    EXPECT_EQ(airport.frequencies, (FrequencyMap{{"TWR", {Frequency{118, 5}, Frequency{119, 6}}}}));
    EXPECT_TRUE(airport.getSketch());
}

TEST(AirportElement, description) {
    auto airport = goldenElement<AirportElement>();
    const std::string heading = "\\\\S1\\0\\135\\255\\0\\\\T\"";
    EXPECT_EQ(airport.createHTI(false),
              "\\R\\T\"private towered closed airport\"\\n" + heading + "Warning: Medium accuracy.\"\\n\\n" + heading +
                  "Elevation: 2625 feet\"\\n\\n" + heading +
                  "RWY: 03L-21\"\\n\\n\\\\T\"4500 x 75 feet (grass)\"\\n"
                  "\\\\T\"Lights available\"\\n\\\\T\"Traffic pattern: 3600 feet; RWY 03L: left, RWY 21: unknown\"\\n" +
                  heading + "Fuel: 100LL\"\\n\\n" + heading + "Remarks:\"\\n\\n\\\\T\"rem\"\\n\\n");

    AirportElement bare;
    bare.accuracy = 3;
    bare.isMilitary = bare.isHeliport = bare.hasGliders = true;
    bare.runways.resize(1);
    EXPECT_EQ(bare.createHTI(true),
              "\\R\\T\"uncontrolled (or no known tower) military heliport (special e.g. glider/ultralight "
              "activities)\"\\n" +
                  heading + "Elevation: -\"\\n\\n" + heading +
                  "RWY: 36-18\"\\n\\n"
                  "\\\\T\"unknown x unknown m (unknown surface)\"\\n\\\\T\"No known lights available\"\\n\\n");
    bare.trafficPatternFeet = 0;
    EXPECT_NE(bare.createHTI(true).find("Traffic pattern: 0 feet; \""), std::string::npos);
    bare.runways[0].lengthFeet = 1000;
    bare.runways[0].ends[1].trafficPattern = Runway::RightPattern;
    bare.trafficPatternFeet = -1;
    EXPECT_NE(bare.createHTI(true).find("305 x unknown m ("), std::string::npos);
    EXPECT_NE(bare.createHTI(true).find("Traffic pattern: RWY 36: unknown, RWY 18: right\""), std::string::npos);
}

// What a page's reader does to quotes, number signs and backslashes must not reach the text.
TEST(AirportElement, remarksCannotBreakThePage) {
    AirportElement airport;
    airport.accuracy = 3;
    airport.remarks = "say \"hi\";          #2 C:\\";
    const std::string page = airport.createHTI(false);
    EXPECT_EQ(page.substr(page.find("Remarks:")), "Remarks:\"\\n\\n\\\\T\"say 'hi'\n\\#2 C:\\\\ \"\\n\\n");
}

} // namespace

} // namespace skyvane
