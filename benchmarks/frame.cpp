// Whole frames with a flight coming in, against their quads and texts drawn plainly: the demo's page of dials, and the
// standard document's page of value fields and dials, a glider panel. Then how many texts are built in frames in which
// nothing changes.
#include "Bench.h"
#include "DemoProgram.h"
#include "PlainPage.h"

#include "core/Context.h"
#include "core/files/StandardDocuments.h"
#include "core/ini/IniFile.h"
#include "core/text/Numbers.h"
#include "displays/layout/PageLayout.h"
#include "gui/font/FlexibleFont.h"
#include "gui/menu/MenuBar.h"

#include <chrono>
#include <cmath>
#include <thread>

namespace skyvane {

namespace {

constexpr int fieldFactory = 6;
constexpr int gliderFactory = 14;
constexpr int fieldPage = 3;
const char* const demoConfig = "tools/demo/config.ini";

/// The first page of the document as plain pictures.
void addPage(DemoProgram& program, IniFile& config) {
    const PanelArea area = MenuBar::panelArea(program.getContext().getScreenMetrics());
    for (const PageLayout::Panel& panel : PageLayout::read(config, area, false).panels) {
        if (panel.page != 0)
            continue;
        if (panel.factoryIndex == fieldFactory)
            program.getPlainPage().addField(panel.rect, program.getContext().getFlexibleFont());
        else if (panel.factoryIndex == gliderFactory)
            program.getPlainPage().addGlider(panel.rect, program.getContext().getFlexibleFont());
        else
            program.getPlainPage().addPanel(panel.factoryIndex, panel.rect);
    }
}

/// The demo's sensors, without its panels.
IniFile readSensors() {
    IniFile config(demoConfig);
    for (int panel = 0; config.isSectionAvailable("P" + toText(panel)); ++panel)
        config.removeSection("P" + toText(panel));
    return config;
}

/// With a glider panel as the only one.
std::string writeGliderConfig() {
    IniFile config = readSensors();
    config.set("", "PanelCount", "1");
    config.set("P0", "FactoryIndex", toText(gliderFactory));
    for (const char* key : {"ViewPortSX", "ViewPortSY"})
        config.set("P0", key, "0");
    for (const char* key : {"ViewPortTX", "ViewPortTY"})
        config.set("P0", key, "1");
    const std::string path = benchBuildFolder() + "/bench-glider.ini";
    return config.Save(path) ? path : std::string();
}

/// With the page of fields and dials of the standard document as the only one.
std::string writeFieldConfig() {
    IniFile config = readSensors(), standard;
    standard.setFromString(standardConfigINI);
    int count = 0;
    const PageLayout pages = PageLayout::read(standard, {1280, 0, 720}, false);
    for (const PageLayout::Panel& panel : pages.panels) {
        if (panel.page != fieldPage)
            continue;
        const std::string section = "P" + toText(count++);
        for (const char* key : {"FactoryIndex", "ViewPortSX", "ViewPortSY", "ViewPortTX", "ViewPortTY", "Type"})
            config.set(section, key, standard.get(panel.section, key));
    }
    config.set("", "PanelCount", toText(count));
    const std::string path = benchBuildFolder() + "/bench-fields.ini";
    return config.Save(path) ? path : std::string();
}

double measurePage(const std::string& path, const std::function<double(DemoProgram&)>& measure) {
    DemoProgram program(path);
    if (!program.isGood())
        return std::nan("");
    IniFile config(path);
    addPage(program, config);
    program.begin();
    return measure(program);
}

double dialFrames(bool smoke) {
    return measurePage(demoConfig, [smoke](DemoProgram& program) { return frameRatio(program, smoke); });
}

double fieldFrames(bool smoke) {
    return measurePage(writeFieldConfig(), [smoke](DemoProgram& program) { return frameRatio(program, smoke); });
}

double gliderFrames(bool smoke) {
    return measurePage(writeGliderConfig(), [smoke](DemoProgram& program) { return frameRatio(program, smoke); });
}

/// Meshes and sizes of texts in frames that find the same data as the one before.
double textBuilds(bool) {
    return measurePage(writeFieldConfig(), [](DemoProgram& program) {
        {
            const Feeder feeder;
            std::this_thread::sleep_for(std::chrono::seconds(1));
            program.frameSeconds();
        }
        constexpr int settling = 3, watched = 10; // the data stays good meanwhile
        for (int frame = 0; frame < settling; ++frame)
            program.frameSeconds();
        const FlexibleFont* font = program.getContext().getFlexibleFont();
        const unsigned long before = font->getLayouts();
        for (int frame = 0; frame < watched; ++frame)
            program.frameSeconds();
        return static_cast<double>(font->getLayouts() - before);
    });
}

} // namespace

std::vector<Bench> frameBenches() {
    return {{"dials.frame", Bench::Bound::AtMost, 1.5, dialFrames},
            {"fields.frame", Bench::Bound::AtMost, 2.0, fieldFrames},
            {"glider.frame", Bench::Bound::AtMost, 1.5, gliderFrames},
            {"text.rebuilds", Bench::Bound::AtMost, 0.0, textBuilds}};
}

} // namespace skyvane
