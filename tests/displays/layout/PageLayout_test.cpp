#include "displays/layout/PageLayout.h"

#include "core/ini/IniFile.h"

#include <gtest/gtest.h>

using namespace skyvane;
using irr::core::rect;

namespace {

const PanelArea screen{1280, 20, 740};

void addPanel(IniFile& ini, int index, const char* page, const char* portrait, const char* factory) {
    const std::string section = "P" + std::to_string(index);
    ini.set(section, "Page", page);
    ini.set(section, "Portrait", portrait);
    ini.set(section, "FactoryIndex", factory);
}

IniFile threePages() {
    IniFile ini;
    ini.set("", "PanelCount", "4");
    addPanel(ini, 0, "0", "", "4");
    addPanel(ini, 1, "2", "1", "5");
    addPanel(ini, 2, "0", "0", "0");
    addPanel(ini, 3, "1", "1", "2");
    return ini;
}

TEST(PageLayout, listsThePanelsOfOneOrientationAndCountsThePagesOfBoth) {
    IniFile ini = threePages();
    ini.set("P2", "ViewPortSX", "0.25");
    ini.set("P2", "ViewPortSY", "0.5");
    ini.set("P2", "ViewPortTX", "1.001");
    ini.set("P2", "ViewPortTY", "0.9999");
    const std::string before = ini.toString();
    const PageLayout landscape = PageLayout::read(ini, screen, false);
    ASSERT_EQ(landscape.panels.size(), 2u);
    EXPECT_EQ(landscape.pageCount, 3);
    EXPECT_EQ(landscape.panels[0].section, "P0");
    EXPECT_EQ(landscape.panels[0].factoryIndex, 4);
    EXPECT_EQ(landscape.panels[1].factoryIndex, 0);
    EXPECT_EQ(landscape.panels[1].rect, rect<int>(320, 380, 1281, 739)) << "each edge truncated";
    const PageLayout portrait = PageLayout::read(ini, screen, true);
    ASSERT_EQ(portrait.panels.size(), 2u);
    EXPECT_EQ(portrait.panels[0].page, 2);
    EXPECT_EQ(portrait.panels[1].section, "P3");
    EXPECT_EQ(ini.toString(), before);
}

TEST(PageLayout, damagedNumbersGiveSomeLayout) {
    for (const char* count : {"1000000000", "999999999999999999999", "4.7e99", "5"}) {
        IniFile ini = threePages();
        ini.set("", "PanelCount", count);
        EXPECT_LE(PageLayout::read(ini, screen, false).panels.size(), 2u) << count;
    }
    IniFile million = threePages();
    million.set("", "PanelCount", "1000000000");
    EXPECT_EQ(PageLayout::read(million, screen, false).panels.size(), 2u);
    for (const char* count : {"", "-1", "0", "many"}) {
        IniFile ini = threePages();
        ini.set("", "PanelCount", count);
        const PageLayout layout = PageLayout::read(ini, screen, false);
        EXPECT_TRUE(layout.panels.empty()) << count;
        EXPECT_EQ(layout.pageCount, 1) << count;
    }
    IniFile ini = threePages();
    ini.removeSection("P1");
    ini.set("P2", "Page", "-7");
    ini.set("P3", "Page", "2000000000");
    ini.set("P0", "FactoryIndex", "x");
    const PageLayout layout = PageLayout::read(ini, screen, false);
    EXPECT_EQ(layout.pageCount, PageLayout::maximumPage + 1);
    ASSERT_EQ(layout.panels.size(), 2u);
    EXPECT_EQ(layout.panels[0].factoryIndex, -1);
    EXPECT_EQ(layout.panels[1].page, 0);
}

TEST(PageLayout, anyFractionsGiveARectangle) {
    const double nan = std::stod("nan"), infinity = std::stod("inf");
    EXPECT_EQ(panelRect({0, 0, 1, 1}, screen), rect<int>(0, 20, 1280, 740));
    EXPECT_EQ(panelRect({nan, nan, 1, nan}, screen), rect<int>(0, 20, 1280, 20));
    EXPECT_EQ(panelRect({0.75, 1, 0.25, 0}, screen), rect<int>(320, 20, 960, 740)) << "swapped edges";
    const rect<int> huge = panelRect({-1e308, -infinity, infinity, 1e308}, screen);
    EXPECT_EQ(huge, rect<int>(-128000, 20 - 72000, 128000, 20 + 72000));
    IniFile ini = threePages();
    ini.set("P0", "ViewPortTX", "nan");
    ini.set("P0", "ViewPortTY", "wide");
    EXPECT_EQ(PageLayout::read(ini, screen, false).panels[0].rect, rect<int>(0, 20, 0, 20));
}

TEST(PageLayout, turnsPagesRound) {
    PageLayout layout;
    layout.pageCount = 3;
    EXPECT_EQ(layout.pageAt(2, 1), 0);
    EXPECT_EQ(layout.pageAt(0, -1), 2);
    EXPECT_EQ(layout.pageAt(1, 7), 2);
    EXPECT_EQ(layout.pageAt(1, -7), 0);
    EXPECT_EQ(PageLayout().pageAt(0, -1), 0);
}

TEST(PageLayout, closesUpTheGapOfAnEmptyPage) {
    IniFile ini = threePages();
    EXPECT_EQ(calcPageCountFromIni(ini), 3);
    EXPECT_FALSE(cleanPage(ini, 1)) << "still in use";
    EXPECT_EQ(ini.get("P1", "Page"), "2");
    ini.set("P3", "Page", "0");
    EXPECT_TRUE(cleanPage(ini, 1));
    EXPECT_EQ(ini.get("P1", "Page"), "1");
    EXPECT_EQ(ini.get("P0", "Page"), "0");
    EXPECT_EQ(calcPageCountFromIni(ini), 2);
    ini.set("", "PanelCount", "0");
    EXPECT_EQ(calcPageCountFromIni(ini), 1);
}

} // namespace
