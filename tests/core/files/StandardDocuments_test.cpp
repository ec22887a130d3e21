#include "core/files/StandardDocuments.h"

#include "core/ini/IniFile.h"
#include "core/ini/IniIterator.h"
#include "core/text/Numbers.h"

#include <gtest/gtest.h>

#include <map>
#include <set>
#include <vector>

namespace skyvane {
namespace {

struct Panel {
    std::string factory;
    std::string type;
    int factoryIndex;
    int page;
    bool portrait;
    double left, top, right, bottom;

    double width() const { return right - left; }
    double height() const { return bottom - top; }
    bool isSmallAndOnTop() const { return factory == "WarningLamp" || factory == "BatteryPanel"; }
};

std::vector<Panel> standardPanels() {
    IniFile config;
    config.setFromString(standardConfigINI);
    std::vector<Panel> panels;
    for (int i = 0; i < toInt(config.get("", "PanelCount")); ++i) {
        const std::string section = "P" + toText(i);
        EXPECT_TRUE(config.isSectionAvailable(section)) << section;
        const auto value = [&](const char* key) { return config.get(section, key); };
        panels.push_back({value("FactoryName"), value("Type"), toInt(value("FactoryIndex"), -1),
                          toInt(value("Page"), -1), toBool(value("Portrait")), toDouble(value("ViewPortSX"), -1),
                          toDouble(value("ViewPortSY"), -1), toDouble(value("ViewPortTX"), -1),
                          toDouble(value("ViewPortTY"), -1)});
        EXPECT_EQ(value("SensorCount"), "1");
        EXPECT_EQ(value("Sensor0"), "-1");
    }
    return panels;
}

TEST(StandardConfig, holdsTheCountedPanels) {
    using Factory = std::pair<int, std::string>;
    std::map<Factory, int> factories;
    std::map<std::pair<bool, int>, int> pages;
    std::set<std::string> types;
    for (const Panel& panel : standardPanels()) {
        ++factories[{panel.factoryIndex, panel.factory}];
        ++pages[{panel.portrait, panel.page}];
        if (panel.factory == "OneSegmentPanel")
            types.insert(panel.type);
    }
    const std::map<Factory, int> expectedFactories{{{0, "AttitudeIndicator"}, 2},
                                                   {{1, "TurnCoordinator"}, 2},
                                                   {{2, "2D-Map"}, 6},
                                                   {{3, "3D-Map"}, 6},
                                                   {{4, "Altimeter"}, 2},
                                                   {{5, "Compass"}, 2},
                                                   {{6, "OneSegmentPanel"}, 66},
                                                   {{7, "WarningLamp"}, 10},
                                                   {{8, "VerticalSpeedIndicator"}, 2},
                                                   {{9, "Ground/AirSpeedIndicator"}, 2},
                                                   {{11, "G-Meter"}, 2},
                                                   {{12, "BatteryPanel"}, 10},
                                                   {{13, "CheckListPanel"}, 2},
                                                   {{15, "Details"}, 2},
                                                   {{16, "SideViewPanel"}, 2},
                                                   {{17, "GlideInfoPanel"}, 2}};
    EXPECT_EQ(factories, expectedFactories);
    const std::map<std::pair<bool, int>, int> expectedPages{
        {{false, 0}, 4}, {{false, 1}, 13}, {{false, 2}, 3}, {{false, 3}, 19}, {{false, 4}, 17},
        {{false, 5}, 1}, {{false, 6}, 1},  {{true, 0}, 4},  {{true, 1}, 15},  {{true, 2}, 3},
        {{true, 3}, 19}, {{true, 4}, 19},  {{true, 5}, 1},  {{true, 6}, 1}};
    EXPECT_EQ(pages, expectedPages);
    EXPECT_EQ(types,
              (std::set<std::string>{"ALTITUDE", "ALTITUDE_AGL", "BEARING", "DISTANCE", "ETA", "ETE", "GROUNDSPEED",
                                     "HEADING", "NEXTWPT", "PRESSURE_ALTITUDE_INSIDE", "SATCOUNT", "UTC"}));
}

TEST(StandardConfig, placesPanelsSanely) {
    for (const Panel& panel : standardPanels()) {
        SCOPED_TRACE(panel.factory + " " + panel.type + " on page " + toText(panel.page));
        EXPECT_GE(panel.left, 0.0);
        EXPECT_GE(panel.top, 0.0);
        EXPECT_LE(panel.right, panel.factory == "Details" ? 1.001 : 1.0);
        EXPECT_LE(panel.bottom, 1.0);
        EXPECT_GT(panel.width(), 0.03);
        EXPECT_GT(panel.height(), 0.02);
        if (panel.factory == "2D-Map" || panel.factory == "3D-Map") {
            EXPECT_GE(panel.width() * panel.height(), 0.2);
        }
    }
}

TEST(StandardConfig, givesRoundDialsSquareCellsOrTallerOnes) {
    const std::set<int> round{0, 1, 4, 5, 7, 8, 9, 11};
    for (const Panel& panel : standardPanels()) {
        if (round.count(panel.factoryIndex) == 0)
            continue;
        // A tall page has height to spare: there a dial takes all the width that there is.
        const double areaRatio = panel.portrait ? 720.0 / 1233.0 : 1280.0 / 673.0;
        const double shape = panel.width() / panel.height() * areaRatio;
        EXPECT_LE(shape, 1.01) << panel.factory;
        EXPECT_GE(shape, panel.portrait ? 0.65 : 0.99) << panel.factory;
    }
}

TEST(StandardConfig, overlapsOnlyByIntent) {
    const std::vector<Panel> panels = standardPanels();
    const double hair = 1e-5;
    for (size_t upper = 0; upper < panels.size(); ++upper)
        for (size_t lower = 0; lower < upper; ++lower) {
            const Panel& a = panels[lower];
            const Panel& b = panels[upper];
            const bool overlap = a.page == b.page && a.portrait == b.portrait && a.left < b.right - hair &&
                                 b.left < a.right - hair && a.top < b.bottom - hair && b.top < a.bottom - hair;
            const bool onPicture = a.factory == "2D-Map" || a.factory == "3D-Map";
            EXPECT_TRUE(!overlap || (b.isSmallAndOnTop() && onPicture))
                << a.factory << a.type << " and " << b.factory << b.type << " on page " << a.page;
        }
}

TEST(StandardConfig, makesValueFieldsEqualAndDifferent) {
    std::map<std::pair<bool, int>, std::vector<Panel>> pages;
    for (const Panel& panel : standardPanels())
        if (panel.factory == "OneSegmentPanel")
            pages[{panel.portrait, panel.page}].push_back(panel);
    for (const auto& [page, fields] : pages) {
        std::set<std::string> types;
        for (const Panel& field : fields) {
            types.insert(field.type);
            EXPECT_NEAR(field.width(), fields.front().width(), 2e-6);
            EXPECT_NEAR(field.height(), fields.front().height(), 2e-6);
        }
        EXPECT_EQ(types.size(), fields.size()) << "a value twice on page " << page.second;
    }
}

TEST(StandardDocuments, areWhatTheProgramWouldWrite) {
    for (const char* text : {standardConfigINI, standardAircraftsINI, standardHotspotINI, standardExtSensorConfigINI,
                             standardCalibrationINI}) {
        IniFile document;
        document.setFromString(text);
        EXPECT_EQ(document.toString(), text);
    }
}

TEST(StandardDocuments, holdTheirDefaults) {
    IniFile config;
    config.setFromString(standardConfigINI);
    for (int type = 0; type <= 20; ++type)
        EXPECT_EQ(config.get("", "D" + toText(type)), "0");
    EXPECT_EQ(config.get("", "SensorCount"), "1");
    EXPECT_EQ(config.get("", "blacklist"), "AMA, PROTECT, FIR, O, DO, OTHER, UIR, E, G, CTA");
    EXPECT_EQ(config.get("", "font"), "Ubuntu (Regular)");
    EXPECT_TRUE(config.isAvailable("", "optimized"));
    EXPECT_EQ(config.get("", "optimized"), "");
    EXPECT_EQ(config.get("", "units"), "ft|nm|knots");
    EXPECT_EQ(config.get("", "major") + "." + config.get("", "minor"), "2.8");
    IniFile aircrafts;
    aircrafts.setFromString(standardAircraftsINI);
    EXPECT_EQ(aircrafts.get("A0", "inverseGlideRatio"), "9.35");
    EXPECT_EQ(aircrafts.get("", "aircraftCount"), "1");
    IniFile external;
    external.setFromString(standardExtSensorConfigINI);
    EXPECT_EQ(external.get("", "RS232BaudRate"), "4800");
    EXPECT_TRUE(external.isAvailable("", "btAddress"));
}

} // namespace
} // namespace skyvane
