#include "core/ini/IniFile.h"
#include "displays/gauges/PanelColor.h"

#include <gtest/gtest.h>

namespace skyvane {
namespace {

TEST(PanelColor, damagedChannelsGiveAColourAllTheSame) {
    IniFile ini;
    ini.set("P1", "Color.R", "300");
    ini.set("P1", "Color.G", "-5");
    ini.set("P1", "Color.B", "blue");
    EXPECT_EQ(readColor(ini, "P1", "Color", 0x40102030), 0x40ff0030u);
    EXPECT_EQ(readColor(ini, "P2", "Color", 0x80808080), 0x80808080u);
    EXPECT_FALSE(ini.isSectionAvailable("P2"));
}

TEST(PanelColor, isReadBackAsWritten) {
    IniFile ini;
    writeColor(ini, "P1", "pfdColor", 0x40302010);
    EXPECT_EQ(ini.get("P1", "pfdColor.A"), "64");
    EXPECT_EQ(ini.get("P1", "pfdColor.R"), "48");
    EXPECT_EQ(readColor(ini, "P1", "pfdColor", 0), 0x40302010u);
}

} // namespace
} // namespace skyvane
