#include "displays/gauges/PanelOptions.h"

#include "core/ini/IniFile.h"

#include <gtest/gtest.h>

using namespace skyvane;

namespace {

const std::vector<EditorRow> rows =
    parseEditorSchema(L"Type,Type:,ETE\\;ETA,ONE_OF;Color,Colour:,0\\,0\\,128,COLOR_RGB;"
                      L"ground,Ground:,128\\,128\\,128\\,64,COLOR_RGBA;");

TEST(PanelOptions, aSectionBecomesADocumentAndComesBack) {
    IniFile ini;
    ini.setFromString("[P3]\nType = ETA\nColor.R = 20\nColor.A = 77\nPage = 2\n");
    IniFile options = readPanelOptions(rows, ini, "P3");
    EXPECT_EQ(options.get("", "Type"), "ETA");
    EXPECT_EQ(options.get("", "Color"), "20,0,128");
    EXPECT_EQ(options.get("", "ground"), "128,128,128,64");
    EXPECT_FALSE(options.isAvailable("", "Page"));
    options.set("", "Type", "ETE");
    options.set("", "Color", "1,2,3");
    options.set("", "ground", "5,6,7,8");
    writePanelOptions(rows, options, ini, "P3");
    EXPECT_EQ(ini.get("P3", "Type"), "ETE");
    EXPECT_EQ(ini.get("P3", "Color.G"), "2");
    EXPECT_EQ(ini.get("P3", "Color.A"), "77") << "the row has no alpha";
    EXPECT_EQ(ini.get("P3", "ground.A"), "8");
    EXPECT_EQ(ini.get("P3", "Page"), "2");
    EXPECT_FALSE(ini.isAvailable("P3", "Color"));
}

TEST(PanelOptions, aSectionWithoutKeysGetsThemAndKeepsWhatTheDocumentLacks) {
    IniFile ini;
    IniFile options = readPanelOptions(rows, ini, "P3");
    EXPECT_FALSE(options.isAvailable("", "Type")) << "the editor shows its default";
    EXPECT_FALSE(ini.isSectionAvailable("P3"));
    writePanelOptions(rows, options, ini, "P3");
    EXPECT_EQ(ini.get("P3", "Color.B"), "128");
    EXPECT_EQ(ini.get("P3", "Color.A"), "255");
    EXPECT_FALSE(ini.isAvailable("P3", "Type"));
}

} // namespace
