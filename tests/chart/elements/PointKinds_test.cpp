#include "chart/elements/GoldenRecords.h"
#include "chart/elements/GroupedObstruction.h"
#include "chart/elements/MarkElement.h"
#include "chart/elements/NDBElement.h"
#include "chart/elements/ObstructionElement.h"
#include "chart/elements/VORElement.h"
#include "chart/elements/WaypointElement.h"
#include "core/ini/IniFile.h"

#include <gtest/gtest.h>

namespace skyvane {

namespace {

const std::string pageWithoutDetails = "\\R\\T\"No detailed description available.\"\\n\\n";
const std::string remarksHeading = "\\S1\\0\\135\\255\\0\\\\T\"Remarks:\"\\n\\n\\";

TEST(NDBElement, fields) {
    const auto ndb = goldenElement<NDBElement>();
    EXPECT_EQ(ndb.position.latitude, 42.5);
    EXPECT_EQ(ndb.position.longitude, 1.5);
    EXPECT_EQ(ndb.frequencyKilohertz, 350);
    EXPECT_EQ(ndb.magneticVariationDegrees, 2.5f);
    EXPECT_TRUE(ndb.use.lowAltitude);
    EXPECT_EQ(ndb.getIndicatedLabel(false, false), "SEO");
    EXPECT_EQ(ndb.getIndicatedLabel(true, false), "SEO - La Seu  - NDB");
    EXPECT_EQ(ndb.getTrieInsertionNameCount(), 2);
    EXPECT_EQ(ndb.getTrieInsertionName(1), "La Seu ");
    EXPECT_EQ(ndb.getTrieInsertionName(2), "");
    EXPECT_EQ(ndb.getNavFrequencies().begin()->first, "NDB: 350 khz");
    EXPECT_TRUE(ndb.getComFrequencies().empty());
    EXPECT_EQ(staticDataOf(ndb), bytesOf("05 02 00"));
    EXPECT_EQ(ndb.createHTI(false), pageWithoutDetails);
    EXPECT_EQ(ndb.getAreaDefiningPointCount(), 1);
    EXPECT_EQ(ndb.getAreaDefiningPoint(0).latitude, 42.5);
    EXPECT_EQ(ndb.getAccuracy(), 0);
}

TEST(NDBElement, formattedFrequency) {
    NDBElement ndb;
    for (const auto& [kilohertz, text] :
         std::vector<std::pair<int, std::string>>{{0, "000"}, {10, "0010"}, {11, "011"}, {100, "0100"}, {101, "101"}}) {
        ndb.frequencyKilohertz = kilohertz;
        EXPECT_EQ(ndb.getFormattedFrequency(), text);
    }
}

TEST(NDBElement, documentKeys) {
    IniFile document;
    goldenElement<NDBElement>().writeToIni(&document);
    EXPECT_EQ(document.toString(),
              "Freq = 350\nIdent = SEO\nLat = 42.5\nLong = 1.5\nName = La\\ Seu\\ \nRem = \nType = "
              "NDB\nhighAltUsage = 0\nlowAltUsage = 1\nmagneticVariation = 2.5\nusedByAirways = "
              "0\n\n");
}

TEST(NDBElement, mergeTakesWhatIsMissing) {
    auto known = goldenElement<NDBElement>();
    NDBElement other;
    other.frequencyKilohertz = 999;
    other.name = "Other";
    other.remarks = "more";
    other.use.highAltitude = true;
    other.magneticVariationDegrees = 7.0f;
    known.merge(&other);
    EXPECT_EQ(known.frequencyKilohertz, 350);
    EXPECT_EQ(known.name, "La Seu ");
    EXPECT_EQ(known.remarks, "more");
    EXPECT_TRUE(known.use.highAltitude && known.use.lowAltitude);
    EXPECT_EQ(known.magneticVariationDegrees, 2.5f) << "a known one stays";

    NDBElement empty;
    empty.name.clear();
    empty.remarks = "own";
    empty.merge(&other);
    EXPECT_EQ(empty.frequencyKilohertz, 999);
    EXPECT_EQ(empty.name, "Other");
    EXPECT_EQ(empty.remarks, "own more");
    EXPECT_EQ(empty.magneticVariationDegrees, 7.0f);
    other.remarks = "own more";
    empty.merge(&other);
    EXPECT_EQ(empty.remarks, "own more");
    empty.merge(nullptr);
    const std::string before = recordOf(empty);
    const auto vor = goldenElement<VORElement>();
    empty.merge(&vor);
    EXPECT_EQ(recordOf(empty), before) << "another kind changes nothing";
}

template <class Kind>
void expectSameWithinThreeKilometres() {
    auto here = goldenElement<Kind>();
    auto there = goldenElement<Kind>();
    there.position.latitude += 2990.0 / 111194.940345393;
    EXPECT_TRUE(here.equals(&there));
    there.position.latitude += 20.0 / 111194.940345393;
    EXPECT_FALSE(here.equals(&there));
    there.position = here.position;
    there.ident += "X";
    EXPECT_FALSE(here.equals(&there));
    MarkElement mark;
    EXPECT_FALSE(here.equals(&mark));
    EXPECT_FALSE(here.equals(nullptr));
    EXPECT_FALSE(mark.equals(&mark)) << "marks are never merged";
}

TEST(PointKinds, equality) {
    expectSameWithinThreeKilometres<NDBElement>();
    expectSameWithinThreeKilometres<VORElement>();
    expectSameWithinThreeKilometres<WaypointElement>();
}

TEST(VORElement, typesAndFrequencies) {
    auto vor = goldenElement<VORElement>();
    EXPECT_EQ(vor.position.longitude, -2.0);
    EXPECT_EQ(staticDataOf(vor), bytesOf("06 07 00"));
    EXPECT_EQ(vor.getIndicatedLabel(true, true), "SEU - Seu - VORTAC");
    EXPECT_EQ(vor.createHTI(true), "\\R\\T\"Tacan channel: 84X\"\\n\\\\S1\\0\\135\\255\\0\\\\T\"FSS:\"\\n\\n\\\\T\"BA\""
                                   "\\n\\" +
                                       remarksHeading + "\\T\"r r\"\\n\\n");
    const Frequency frequency{113, 700};
    EXPECT_EQ(vor.getNavFrequencies(), (FrequencyMap{{"VOR", {frequency}}, {"TACAN: 84X", {}}}));
    vor.vorType = VORElement::Tacan;
    EXPECT_EQ(vor.getNavFrequencies(), (FrequencyMap{{"TACAN: 84X", {}}}));
    vor.vorType = VORElement::VorDme;
    EXPECT_EQ(vor.getNavFrequencies(), (FrequencyMap{{"VOR", {frequency}}}));
    EXPECT_EQ(vor.getIndicatedLabel(true, true), "SEU - Seu - VORDME");
    for (const int32_t unknown : {-1, 4, 1 << 30}) {
        vor.vorType = unknown;
        EXPECT_EQ(vor.getIndicatedLabel(true, true), "SEU - Seu - VOR");
        IniFile document;
        vor.writeToIni(&document);
        EXPECT_EQ(document.get("", "VORType"), "VOR");
    }
    IniFile document;
    document.set("", "VORType", "vortac");
    vor.setFromIni(&document);
    EXPECT_EQ(vor.vorType, VORElement::PlainVor);
}

TEST(WaypointElement, publicOnesAreFound) {
    auto fix = goldenElement<WaypointElement>();
    EXPECT_EQ(staticDataOf(fix), bytesOf("03 15 00"));
    EXPECT_EQ(fix.getTrieInsertionNameCount(), 0);
    EXPECT_EQ(fix.getTrieInsertionName(0), "");
    EXPECT_EQ(fix.getIndicatedLabel(true, false), "Waypoint (non public)");
    WaypointElement other;
    other.use.lowAltitude = true;
    fix.merge(&other);
    EXPECT_EQ(staticDataOf(fix), bytesOf("03 1F 00"));
    EXPECT_EQ(fix.getTrieInsertionNameCount(), 1);
    EXPECT_EQ(fix.getTrieInsertionName(0), "GRAUS");
    EXPECT_EQ(fix.getIndicatedLabel(true, false), "GRAUS - Waypoint");
}

TEST(MarkElement, nameAndRemarks) {
    const auto mark = goldenElement<MarkElement>();
    EXPECT_EQ(mark.getIndicatedLabel(true, false), "Home - Mark");
    EXPECT_EQ(mark.getTrieInsertionName(0), "Home");
    EXPECT_EQ(staticDataOf(mark), bytesOf("04 00 00"));
    EXPECT_EQ(mark.createHTI(false), "\\R" + remarksHeading + "\\T\"a; b#c\"\\n\\n");
}

TEST(ObstructionElement, altitudeCodeAndTexts) {
    auto mast = goldenElement<ObstructionElement>();
    EXPECT_EQ(staticDataOf(mast), bytesOf("02 FF FF"));
    EXPECT_EQ(mast.getIndicatedLabel(true, false), "30000 MSL - Obstruction");
    EXPECT_EQ(mast.getIndicatedLabel(true, true), "9144 MSL - Obstruction");
    EXPECT_EQ(mast.getTrieInsertionNameCount(), 0);
    EXPECT_EQ(mast.getTrieInsertionName(0), "");
    EXPECT_EQ(mast.createHTI(true), "\\R\\T\"Lights available, position may be inaccurate\"\\n"
                                    "\\\\S1\\0\\135\\255\\0\\\\T\"Altitude MSL: 9144 m\"\\n\\n"
                                    "\\\\S1\\0\\135\\255\\0\\\\T\"Altitude AGL: 91 m\"\\n\\n\\" +
                                        remarksHeading + "\\T\"mast\"\\n\\n");
    // m = 304.8: 804.8 / 9500 * 65535 = 5551.85, rounded to 0x15B0
    mast.altitudeMslFeet = 1000;
    EXPECT_EQ(staticDataOf(mast), bytesOf("02 B0 15"));
    mast.altitudeMslFeet = -2000;
    EXPECT_EQ(staticDataOf(mast), bytesOf("02 00 00"));
}

TEST(GroupedObstruction, weightedMean) {
    auto group = goldenElement<ObstructionElement>();
    ObstructionElement single;
    single.heightAglFeet = 400;
    single.altitudeMslFeet = 500;
    GroupedObstruction together(group, {10.0f, 0.0f});
    EXPECT_EQ(together.getCount(), 2);
    together.include(single, {40.0f, 30.0f});
    EXPECT_EQ(together.getCount(), 3);
    EXPECT_FLOAT_EQ(together.getPosition().X, 20.0f);
    EXPECT_FLOAT_EQ(together.getPosition().Y, 10.0f);
    EXPECT_EQ(together.getHighestMslFeet(), 30000);
    EXPECT_EQ(together.getHighestAglFeet(), 400);
    EXPECT_EQ(GroupedObstruction(single, {0.0f, 0.0f}).getCount(), 1);
}

} // namespace

} // namespace skyvane
