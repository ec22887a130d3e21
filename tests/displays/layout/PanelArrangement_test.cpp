#include "displays/layout/PanelArrangement.h"

#include "core/ini/IniFile.h"

#include <gtest/gtest.h>

using namespace skyvane;

namespace {

void addPanel(IniFile& ini, int panel, const char* name, const char* page, const char* portrait = "") {
    const std::string section = PanelArrangement::sectionOf(panel);
    ini.set(section, "FactoryName", name);
    ini.set(section, "FactoryIndex", "4");
    ini.set(section, "Page", page);
    ini.set(section, "Portrait", portrait);
}

/// Page 0: a and c; page 1: b; page 2: d, in portrait; page 3: e.
IniFile fivePanels() {
    IniFile ini;
    addPanel(ini, 0, "a", "0");
    addPanel(ini, 1, "b", "1");
    addPanel(ini, 2, "c", "0");
    addPanel(ini, 3, "d", "2", "1");
    addPanel(ini, 4, "e", "3");
    ini.set("", "PanelCount", "5");
    return ini;
}

/// "name@page" of every counted section, in order.
std::string order(IniFile& ini) {
    std::string text;
    for (int panel = 0; panel < std::stoi(ini.get("", "PanelCount")); ++panel) {
        const std::string section = PanelArrangement::sectionOf(panel);
        text += ini.get(section, "FactoryName") + "@" + ini.get(section, "Page") + " ";
    }
    return text;
}

TEST(PanelArrangement, showsThePanelsOfAPageAndOrientation) {
    IniFile ini = fivePanels();
    PanelArrangement landscape(ini, false);
    EXPECT_EQ(landscape.getPanels(), (std::vector<int>{0, 2}));
    landscape.choose(1);
    EXPECT_EQ(landscape.getChosen(), PanelArrangement::none) << "of another page";
    landscape.choose(2);
    EXPECT_EQ(landscape.getChosen(), 2);
    landscape.turnPage(2);
    EXPECT_EQ(landscape.getChosen(), PanelArrangement::none);
    EXPECT_TRUE(landscape.getPanels().empty());
    landscape.turnPage(99);
    EXPECT_EQ(landscape.getPage(), 4) << "one behind the last";
    landscape.turnPage(-99);
    EXPECT_EQ(landscape.getPage(), 0);
}

TEST(PanelArrangement, gapsAndWildCountsBecomeNumbersWithoutGaps) {
    for (const char* stated : {"7", "10000", "2000000000", "99999999999999"}) {
        IniFile ini = fivePanels();
        ini.removeSection("P1");
        ini.moveSection("P4", "P6");
        ini.set("", "PanelCount", stated);
        PanelArrangement arrangement(ini, false);
        EXPECT_EQ(order(ini), "a@0 c@0 d@2 e@3 ");
        EXPECT_FALSE(ini.isSectionAvailable("P6"));
    }
    for (const char* stated : {"", "-3", "x"}) {
        IniFile ini = fivePanels();
        ini.set("", "PanelCount", stated);
        PanelArrangement arrangement(ini, false);
        EXPECT_EQ(ini.get("", "PanelCount"), "0");
        EXPECT_EQ(arrangement.getPageCount(), 1);
    }
}

TEST(PanelArrangement, takesNoMorePanelsThanAreLoaded) {
    IniFile ini;
    for (int panel = 0; panel < 10000; ++panel)
        addPanel(ini, panel, "x", "0");
    ini.set("", "PanelCount", "10000");
    PanelArrangement arrangement(ini, false);
    EXPECT_TRUE(arrangement.isFull());
    arrangement.choose(0);
    arrangement.remove();
    EXPECT_FALSE(arrangement.isFull());
}

TEST(PanelArrangement, aNewPanelCountsOnlyWhenItIsKept) {
    IniFile ini = fivePanels();
    ini.set("P5", "stray", "1");
    PanelArrangement arrangement(ini, true);
    arrangement.turnPage(1);
    EXPECT_EQ(arrangement.beginNew(5, "Compass"), "P5");
    EXPECT_FALSE(ini.isAvailable("P5", "stray"));
    EXPECT_EQ(ini.get("P5", "FactoryIndex"), "5");
    EXPECT_EQ(ini.get("P5", "Page"), "1");
    EXPECT_EQ(ini.get("P5", "Portrait"), "1");
    EXPECT_EQ(ini.get("P5", "ViewPortTX"), "1") << "the only panel takes the whole page";
    EXPECT_EQ(ini.get("", "PanelCount"), "5");
    arrangement.dropNew();
    EXPECT_FALSE(ini.isSectionAvailable("P5"));
    for (int i = 0; i < 2; ++i) {
        arrangement.beginNew(5, "Compass");
        arrangement.keepNew();
    }
    EXPECT_EQ(arrangement.getChosen(), 6);
    EXPECT_EQ(arrangement.getPanels(), (std::vector<int>{5, 6}));
    EXPECT_LT(arrangement.getFractions(6).right, 1.0);
    EXPECT_EQ(ini.get("", "PanelCount"), "7");
}

TEST(PanelArrangement, removingClosesUpSectionsAndEmptyPages) {
    IniFile ini = fivePanels();
    PanelArrangement arrangement(ini, false);
    arrangement.remove();
    EXPECT_EQ(order(ini), "a@0 b@1 c@0 d@2 e@3 ") << "none is chosen";
    arrangement.turnPage(1);
    arrangement.choose(1);
    arrangement.remove();
    EXPECT_EQ(order(ini), "a@0 c@0 d@1 e@2 ");
    EXPECT_FALSE(ini.isSectionAvailable("P4"));
    EXPECT_EQ(arrangement.getPageCount(), 3);
    EXPECT_EQ(arrangement.getChosen(), PanelArrangement::none);
}

TEST(PanelArrangement, theTopIsTheLastSection) {
    IniFile ini = fivePanels();
    PanelArrangement arrangement(ini, false);
    arrangement.choose(0);
    arrangement.moveToTop();
    EXPECT_EQ(order(ini), "b@1 c@0 d@2 e@3 a@0 ");
    EXPECT_EQ(arrangement.getChosen(), 4);
    arrangement.moveToTop();
    EXPECT_EQ(order(ini), "b@1 c@0 d@2 e@3 a@0 ");
    EXPECT_FALSE(ini.isSectionAvailable("P5"));
}

TEST(PanelArrangement, aPanelMovesToAnotherPageAndThePageFollows) {
    IniFile ini = fivePanels();
    PanelArrangement arrangement(ini, false);
    arrangement.choose(2);
    arrangement.moveToPage(-1);
    EXPECT_EQ(order(ini), "a@0 b@1 c@0 d@2 e@3 ");
    arrangement.moveToPage(1);
    EXPECT_EQ(order(ini), "a@0 b@1 c@1 d@2 e@3 ");
    EXPECT_EQ(arrangement.getPage(), 1);
    EXPECT_EQ(arrangement.getChosen(), 2);
    arrangement.turnPage(-1);
    arrangement.choose(0);
    arrangement.moveToPage(1);
    EXPECT_EQ(order(ini), "a@0 b@0 c@0 d@1 e@2 ") << "page 0 was left empty";
    EXPECT_EQ(arrangement.getPage(), 0);
    EXPECT_EQ(arrangement.getChosen(), 0);
    arrangement.turnPage(2);
    arrangement.choose(4);
    arrangement.moveToPage(1);
    EXPECT_EQ(arrangement.getPage(), 2) << "alone on the last page: there is nothing behind it";
}

TEST(PanelArrangement, brokenRectanglesCanBeTakenHoldOf) {
    IniFile ini = fivePanels();
    PanelArrangement arrangement(ini, false);
    for (const char* wrong : {"", "nan", "1e300", "-1e300", "5", "0.5"}) {
        for (const char* key : {"ViewPortSX", "ViewPortSY"})
            ini.set("P0", key, wrong);
        ini.set("P0", "ViewPortTX", "-2");
        ini.set("P0", "ViewPortTY", wrong);
        const PanelFractions place = arrangement.getFractions(0);
        EXPECT_GE(place.right - place.left, 0.039) << wrong;
        EXPECT_GE(place.bottom - place.top, 0.039) << wrong;
        EXPECT_LT(place.left, 1.0) << wrong;
        EXPECT_GT(place.right, 0.0) << wrong;
        EXPECT_LT(place.top, 1.0) << wrong;
        EXPECT_GT(place.bottom, 0.0) << wrong;
    }
    arrangement.setFractions(0, {0.25, 0.5, 1.001, 1.0});
    EXPECT_EQ(ini.get("P0", "ViewPortTX"), "1.001");
    EXPECT_DOUBLE_EQ(arrangement.getFractions(0).right, 1.001) << "legal as it is";
}

} // namespace
