#include "chart/elements/AirspaceElement.h"
#include "chart/elements/AirwayElement.h"
#include "chart/elements/AltitudeCodes.h"
#include "chart/elements/GoldenRecords.h"
#include "chart/elements/GroundGeometryElement.h"
#include "core/ini/IniFile.h"

#include <gtest/gtest.h>

namespace skyvane {

namespace {

TEST(AltitudeCodes, ends) {
    EXPECT_EQ(encode12BitAltitude(-501.0), 0);
    EXPECT_EQ(encode12BitAltitude(9001.0), 4095);
    EXPECT_EQ(decode12BitAltitude(0), -500.0);
    EXPECT_EQ(decode12BitAltitude(4095), 9000.0);
    EXPECT_EQ(decode12BitAltitude(0xf000), -500.0) << "the class bits don't count";
    for (uint16_t code = 0; code < 4096; ++code)
        ASSERT_EQ(encode12BitAltitude(decode12BitAltitude(code)), code);
    EXPECT_EQ(encode16BitAltitude(9000.0), 65535);
    EXPECT_EQ(encode16BitAltitude(-500.0), 0);
}

TEST(AirspaceElement, boundsAndPoints) {
    const auto airspace = goldenElement<AirspaceElement>();
    EXPECT_EQ(airspace.getAreaDefiningPointCount(), 3);
    EXPECT_EQ(airspace.getAreaDefiningPoint(2).longitude, -2.0) << "longitude first";
    EXPECT_EQ(airspace.getAreaDefiningPoint(2).latitude, 1.5);
    EXPECT_EQ(airspace.getPosition().longitude, 1.5);
    EXPECT_EQ(airspace.getBounds().northWest.longitude, -2.0);
    EXPECT_EQ(airspace.getBounds().northWest.latitude, 42.5);
    EXPECT_EQ(airspace.getBounds().southEast.longitude, 2.25);
    EXPECT_EQ(airspace.getBounds().southEast.latitude, 1.5);
    EXPECT_GT(airspace.getBounds().areaSquareMetres, 1e12);

    AirspaceElement none;
    IniFile document;
    document.set("", "VCount", "0");
    none.setFromIni(&document);
    EXPECT_EQ(none.getAreaDefiningPointCount(), 0);
    EXPECT_EQ(none.getPosition().longitude, 0.0);
    EXPECT_FALSE(none.getBounds().isArea);
    EXPECT_TRUE(none.isHighAltitudeRelevant());
}

TEST(AirspaceElement, vertexSectionsOfAnOlderDocumentGo) {
    auto airspace = goldenElement<AirspaceElement>();
    IniFile document;
    airspace.writeToIni(&document);
    airspace.vertices.pop_back();
    airspace.writeToIni(&document);
    EXPECT_EQ(document.get("", "VCount"), "2");
    EXPECT_TRUE(document.isSectionAvailable("1"));
    EXPECT_FALSE(document.isSectionAvailable("2"));
}

TEST(AirspaceElement, labels) {
    auto airspace = goldenElement<AirspaceElement>();
    EXPECT_EQ(airspace.getIndicatedLabel(false, false), "Class CTR");
    EXPECT_EQ(airspace.getIndicatedLabel(true, false), "EXCLUDED from Class: CTR\n[SFC - 4500 AGL]\nLESU");
    EXPECT_EQ(airspace.getIndicatedLabel(true, true), "EXCLUDED from Class: CTR\n[SFC - 1372 AGL]\nLESU");
    airspace.excludes = false;
    airspace.name.clear();
    airspace.bottomFeet = 0;
    airspace.topFeet = AirspaceElement::Unlimited;
    EXPECT_EQ(airspace.getIndicatedLabel(true, false), "Class: CTR\n[0 MSL - UNL]");
    airspace.isBottomMsl = false;
    EXPECT_EQ(airspace.getIndicatedLabel(true, false), "Class: CTR\n[SFC - UNL]");
    airspace.bottomFeet = 1000;
    EXPECT_EQ(airspace.getIndicatedLabel(true, false), "Class: CTR\n[1000 AGL - UNL]");

    airspace.airspaceClass = "TP";
    airspace.topFeet = 0;
    EXPECT_EQ(airspace.getIndicatedLabel(false, false), "TP");
    EXPECT_EQ(airspace.getIndicatedLabel(true, false), "Traffic Pattern");
    airspace.topFeet = 1000;
    EXPECT_EQ(airspace.getIndicatedLabel(true, true), "Traffic Pattern\n305 AGL");
    EXPECT_EQ(airspace.createHTI(false), "\\R\\T\"Traffic Pattern: 1000 AGL\"\\n\\\\S1\\0\\135\\255\\0\\\\T\"Remarks:\""
                                         "\\n\\n\\\\T\"r\"\\n\\n");
}

TEST(AirspaceElement, descriptionOfClasses) {
    auto airspace = goldenElement<AirspaceElement>();
    airspace.airspaceClass = "C";
    airspace.remarks.clear();
    EXPECT_EQ(airspace.createHTI(false),
              "\\R\\T\"Airspace EXCLUDED from Class: C\n[SFC - 4500 AGL]\nLESU\"\\n"
              "\\\\S1\\0\\135\\255\\0\\\\T\"Class description:\"\\n\\n"
              "\\\\T\"Class C airspace:\"\\n"
              "\\\\T\"Please check the applicable laws and official publications to get detailed informations for a "
              "safe and lawful airspace usage.\n\"\\n\\n");
    EXPECT_EQ(AirspaceElement::getClassDescription("RAS"), "Regulated airspace (not otherwise covered).");
    const std::string segregated = AirspaceElement::getClassDescription("TSA");
    EXPECT_EQ(std::count(segregated.begin(), segregated.end(), '\n'), 2);
    EXPECT_EQ(AirspaceElement::getClassDescription("NSA").back(), '.');
    EXPECT_NE(AirspaceElement::getClassDescription("NAS"), "");
    EXPECT_EQ(AirspaceElement::getClassDescription(""), "");
}

TEST(AirspaceElement, staticClasses) {
    AirspaceElement airspace;
    airspace.bottomFeet = 1000; // 304.8 m: 804.8 / 9500 * 4095 = 346.9, 347 is 0x15B
    airspace.airspaceClass = "C";
    EXPECT_EQ(staticDataOf(airspace), bytesOf("00 5B 01"));
    airspace.airspaceClass = "O";
    EXPECT_EQ(staticDataOf(airspace), bytesOf("00 5B 41"));
    airspace.airspaceClass = "DO";
    EXPECT_EQ(staticDataOf(airspace), bytesOf("00 5B 51"));
    airspace.airspaceClass = "TSA";
    airspace.bottomFeet = AirspaceElement::Unlimited;
    EXPECT_EQ(staticDataOf(airspace), bytesOf("00 00 E0"));
    EXPECT_EQ(AirspaceElement::readStaticAirspaceClass(staticDataOf(airspace).data()), 14);
    EXPECT_EQ(AirspaceElement::readStaticAirspaceClass(bytesOf("00 FF FF").data()), 0);
}

TEST(AirwayElement, fieldsAndTexts) {
    auto airway = goldenElement<AirwayElement>();
    EXPECT_EQ(airway.start.longitude, 1.5);
    EXPECT_EQ(airway.end.latitude, 2.25);
    EXPECT_EQ(airway.getPosition().longitude, -0.25);
    EXPECT_EQ(airway.getPosition().latitude, 22.375);
    EXPECT_EQ(airway.getAreaDefiningPointCount(), 2);
    EXPECT_EQ(airway.getAreaDefiningPoint(1).longitude, -2.0);
    EXPECT_EQ(staticDataOf(airway), bytesOf("01 01 00"));
    EXPECT_EQ(airway.getIndicatedLabel(false, false), "A1");
    EXPECT_EQ(airway.getIndicatedLabel(true, false), "A1 - Airway");
    EXPECT_EQ(airway.createHTI(false), "\\R\\T\"MEA (min. enroute altitude): 9000 msl\"\\n"
                                       "\\\\T\"MAA (max. authorized altitude): 19500 msl\"\\n"
                                       "\\\\T\"Airway is used for high altitudes.\"\\n\\n");
    airway.minimumObstructionClearance.isAvailable = true;
    airway.maximumAuthorised.isAvailable = false;
    airway.isLowAltitude = true;
    airway.remarks = "x";
    EXPECT_EQ(airway.createHTI(true), "\\R\\T\"MEA (min. enroute altitude): 2743 msl\"\\n"
                                      "\\\\T\"MOCA (min. obstruction clearence altitude): 0 msl\"\\n"
                                      "\\\\T\"Airway is used for high and low altitudes.\"\\n"
                                      "\\\\S1\\0\\135\\255\\0\\\\T\"Remarks:\"\\n\\n\\\\T\"x\"\\n\\n");
}

TEST(GroundGeometryElement, sizeClasses) {
    EXPECT_NEAR(ggeByteToArea(255), 1.0e9, 1.0e6);
    EXPECT_EQ(ggeByteToArea(0), 15258.0);
    for (int byte = 0; byte <= 255; ++byte)
        ASSERT_EQ(ggeAreaToByte(ggeByteToArea(byte)), byte);
    EXPECT_EQ(ggeAreaToByte(0.0), 0);
    EXPECT_EQ(ggeAreaToByte(1.0), 0) << "below the smallest class";
    EXPECT_EQ(ggeAreaToByte(1e300), 255);
}

TEST(GroundGeometryElement, staticBytes) {
    auto river = goldenElement<GroundGeometryElement>();
    EXPECT_EQ(river.getWidthSteps(), 20);
    // ln(20) / 0.0434916 = 68.88; the box of a line from west to east has no area
    EXPECT_EQ(staticDataOf(river), bytesOf("08 45 8B"));
    river.additionalData &= ~uint64_t(0xffff);
    EXPECT_EQ(staticDataOf(river), bytesOf("08 00 AB"));

    GroundGeometryElement lake;
    lake.feature = 13;
    lake.vertices = {{1.0, 42.0}, {1.1, 42.0}, {1.1, 42.1}};
    lake.recalculateBoundingBox();
    EXPECT_EQ(staticDataOf(lake), bytesOf("08 00 6D"));
    lake.feature = 255;
    EXPECT_EQ(staticDataOf(lake)[2] & 0x1f, 20) << "no other feature's number";
    EXPECT_EQ(lake.getIndicatedLabel(true, false), "");
    EXPECT_FALSE(lake.isLowAltitudeRelevant() || lake.isHighAltitudeRelevant());
}

TEST(GroundGeometryElement, labelsAndDescription) {
    auto river = goldenElement<GroundGeometryElement>();
    EXPECT_EQ(river.getRemarks(), "d");
    EXPECT_EQ(river.getIndicatedLabel(false, false), "River: Segre");
    EXPECT_EQ(river.createHTI(true), "\\T\"River: Segre\n\nRemarks: d\n\nElevation: 91 m\n\nMax. weight: 5700 kg\n\n"
                                     "Max. weight per tire: 1400 kg\"\\n");
    river.name.clear();
    EXPECT_EQ(river.getIndicatedLabel(true, false), "River");
    river.feature = GroundGeometryElement::OtherFeature;
    EXPECT_EQ(river.getIndicatedLabel(true, false), "");
    river.name = "Wall";
    EXPECT_EQ(river.getIndicatedLabel(true, false), "Wall");
    EXPECT_STREQ(GroundGeometryElement::defaultLabel(19), "Runway");
}

} // namespace

} // namespace skyvane
