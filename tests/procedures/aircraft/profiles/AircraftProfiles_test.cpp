#include "procedures/aircraft/profiles/AircraftProfiles.h"

#include "core/ini/IniFile.h"
#include "displays/gauges/SpeedScale.h"

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <gtest/gtest.h>
#include <unistd.h>

namespace skyvane {
namespace {

IniFile documentOf(const std::string& text) {
    IniFile ini;
    ini.setFromString(text.c_str());
    return ini;
}

} // namespace

TEST(Aircraft, ANewOneHasNoOptionalSpeedsAndTheStandardOneHasTheDocuments) {
    const Aircraft fresh;
    EXPECT_EQ("new aircraft", fresh.name);
    EXPECT_EQ(-1, fresh.Vsse);
    EXPECT_EQ(-1, fresh.Vbe);
    EXPECT_EQ(-1, fresh.Vbg);
    EXPECT_EQ(-1.0, fresh.inverseGlideRatio);
    EXPECT_EQ("", fresh.findTrouble());
    AircraftProfiles profiles;
    EXPECT_EQ(1, profiles.getCount());
    EXPECT_EQ("Default", profiles.getCurrent().name);
    EXPECT_EQ(45, profiles.getCurrent().Vso);
    EXPECT_EQ(9.35, profiles.getCurrent().inverseGlideRatio);
    EXPECT_EQ("", profiles.getCurrent().findTrouble());
}

TEST(Aircraft, TheStoredFormIsPinned) {
    Aircraft aircraft;
    aircraft.name = "D-E=X;1";
    aircraft.checklists = {{"Before start", {"Fuel on", "a|b"}}, {"", {}}};
    IniFile ini;
    ini.set("A0", "L7", "of an earlier list");
    aircraft.writeToIni(ini, "A0");
    EXPECT_EQ("[A0]\nL0 = Fuel\\ on|a|b\nL0.Name = Before\\ start\nL1 = \nL1.Name = \nListCount = 2\n"
              "Name = D-E\\2X\\;1\nVbe = -1\nVbg = -1\nVfe = 105\nVne = 200\nVno = 145\nVs = 58\nVso = 55\nVsse = -1\n"
              "inverseGlideRatio = -1\n\n",
              ini.toString());
    Aircraft read;
    read.readFromIni(ini, "A0");
    EXPECT_EQ("D-E=X;1", read.name);
    ASSERT_EQ(2, read.getCheckListCount());
    EXPECT_EQ((std::list<std::string>{"Fuel on", "a", "b"}), read.getCheckList(0)->lines);
    EXPECT_TRUE(read.getCheckList(1)->lines.empty());
    EXPECT_EQ(nullptr, read.getCheckList(2));
    EXPECT_EQ(nullptr, read.getCheckList(-1));
    read.removeCheckList(0);
    read.removeCheckList(9);
    EXPECT_EQ(1, read.createCheckList());
}

TEST(Aircraft, WhatIsMissingOrNoNumberIsNoSpeed) {
    IniFile ini = documentOf("[A0]\nVso = x\nVs = -77\nVne = 99999999999999\nVno = 120\nListCount = 2000000000\n"
                             "L0 = Fuel\nL7.Name = Landing\nL1000 = beyond\ninverseGlideRatio = nan\n");
    Aircraft aircraft;
    aircraft.readFromIni(ini, "A0");
    EXPECT_EQ(-1, aircraft.Vso);
    EXPECT_EQ(-1, aircraft.Vs);
    EXPECT_EQ(-1, aircraft.Vfe);
    EXPECT_EQ(-1, aircraft.Vne);
    EXPECT_EQ(120, aircraft.Vno);
    EXPECT_EQ(-1.0, aircraft.inverseGlideRatio);
    ASSERT_EQ(2, aircraft.getCheckListCount()) << "not what it claims";
    EXPECT_EQ("Landing", aircraft.getCheckList(1)->name);
    EXPECT_FALSE(ini.isAvailable("A0", "Vfe")) << "asking adds nothing";
}

TEST(Aircraft, TellsSpeedsThatContradictEachOther) {
    Aircraft aircraft;
    aircraft.Vs = 150;
    EXPECT_EQ("Vs is above Vno.", aircraft.findTrouble());
    aircraft = Aircraft();
    aircraft.Vne = 1000;
    EXPECT_EQ("Vne is above 999 knots.", aircraft.findTrouble());
    aircraft.Vne = -1;
    aircraft.Vno = -1;
    EXPECT_EQ("", aircraft.findTrouble());
}

TEST(AircraftProfiles, AnyDocumentLeavesAnAircraft) {
    for (const char* text : {"", "aircraftCount = -3\n", "aircraftCount = 1000000000\n", "\x01\xff[[[="}) {
        AircraftProfiles profiles;
        profiles.read(documentOf(text));
        EXPECT_EQ(1, profiles.getCount());
        EXPECT_EQ("Default", profiles.getCurrent().name);
    }
    AircraftProfiles profiles;
    profiles.read(documentOf("aircraftCount = 3\ncurrentAircraft = 2\n[A0]\nName = a\n[A2]\nName = c\n"));
    EXPECT_EQ(2, profiles.getCount());
    EXPECT_EQ("c", profiles.getCurrent().name) << "the number is that of the section";
    for (const char* current : {"-1", "7", "x"}) {
        IniFile ini = documentOf("aircraftCount = 1\n[A0]\nName = a\n");
        ini.set("", "currentAircraft", current);
        profiles.read(ini);
        EXPECT_EQ(0, profiles.getCurrentIndex());
    }
}

TEST(AircraftProfiles, AddsRemovesAndKeepsTheCurrentOne) {
    AircraftProfiles profiles;
    EXPECT_FALSE(profiles.remove(0)) << "the last one stays";
    Aircraft second;
    second.name = "second";
    EXPECT_EQ(1, profiles.add(second));
    EXPECT_EQ(2, profiles.add(Aircraft()));
    EXPECT_EQ(2, profiles.getCurrentIndex());
    EXPECT_FALSE(profiles.remove(3));
    EXPECT_TRUE(profiles.remove(0));
    EXPECT_EQ(1, profiles.getCurrentIndex());
    EXPECT_TRUE(profiles.remove(1));
    EXPECT_EQ("second", profiles.getCurrent().name);
    profiles.setCurrent(5);
    EXPECT_EQ(0, profiles.getCurrentIndex());
}

TEST(AircraftProfiles, WhatIsWrittenComesBack) {
    char folder[] = "/tmp/skyvane_aircraft_XXXXXX";
    ASSERT_TRUE(mkdtemp(folder));
    const std::string path = std::string(folder) + "/aircrafts.ini";
    AircraftProfiles profiles;
    profiles.add(Aircraft());
    ASSERT_TRUE(profiles.write().Save(path));
    AircraftProfiles read;
    read.read(IniFile(path));
    EXPECT_EQ(1, read.getCurrentIndex());
    EXPECT_EQ("new aircraft", read.getCurrent().name);
    std::remove(path.c_str());
    rmdir(folder);
}

TEST(SpeedScale, OfAnAircraftMarksOnlyWhatItHas) {
    Aircraft aircraft;
    SpeedScale scale = SpeedScale::of(aircraft);
    EXPECT_EQ(40, scale.start);
    EXPECT_EQ(200, scale.end);
    EXPECT_EQ(145, scale.greenEnd);
    EXPECT_LT(scale.blue, 0);
    EXPECT_TRUE(scale == SpeedScale::of(Aircraft()));
    aircraft.Vso = 48; // 33.6 rounds to 30
    aircraft.Vne = 163;
    aircraft.Vsse = 88;
    scale = SpeedScale::of(aircraft);
    EXPECT_EQ(30, scale.start);
    EXPECT_EQ(160, scale.end);
    EXPECT_EQ(88, scale.blue);
    EXPECT_FALSE(scale == SpeedScale::of(Aircraft()));
    aircraft.Vne = -1;
    aircraft.Vso = -1;
    scale = SpeedScale::of(aircraft);
    EXPECT_EQ(150, scale.end) << "up to what is known";
    EXPECT_LT(scale.red, 0);
    EXPECT_LT(scale.whiteStart, 0);
}

} // namespace skyvane
