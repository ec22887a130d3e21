#include "chart/ExtendedChart.h"
#include "core/Context.h"
#include "core/IProgressCallback.h"
#include "core/engine/ShowState.h"
#include "core/ini/IniFile.h"
#include "core/ini/ReadValue.h"
#include "core/ini/SeparatedString.h"
#include "core/log/Logger.h"
#include "core/text/Numbers.h"
#include "displays/PanelManager.h"
#include "displays/panels/MessageBoxView.h"
#include "displays/panels/OverlayInstruments.h"
#include "displays/setup/PanelSetupScreen.h"
#include "gui/font/FlexibleFont.h"
#include "gui/font/LoadFFont.h"
#include "gui/hypertext/ManualWindow.h"
#include "gui/menu/Menu.h"
#include "procedures/ProcedureManager.h"

#include <algorithm>
#include <cmath>

namespace skyvane {

namespace {

const char* const standardFont = "Ubuntu (Regular)";
constexpr int saveTroubleMilliseconds = 10000;
constexpr int elementCacheSize = 100000;
/// Tiles of each type of background.
constexpr int backgroundCacheSize = 80;

std::string withoutSpaces(std::string text) {
    text.erase(std::remove(text.begin(), text.end(), ' '), text.end());
    return text;
}

int detailLevelOf(const std::string& name) {
    return name == "HIGH" ? 2 : name == "MEDIUM" ? 1 : 0;
}

void advance(IProgressCallback* progress) {
    if (progress)
        progress->nextStep();
}

} // namespace

void PanelManager::loadFontSettingsFromIni(IniFile* ini) {
    const auto load = [this](const std::string& name) {
        return name.empty() ? nullptr : LoadFFont(context_->getSystemManager(), context_->getFontManager(), name);
    };
    const std::string wanted = readValue(*ini, "", "font");
    FlexibleFont* font = load(wanted);
    if (!font && wanted != standardFont) {
        ini->set("", "font", standardFont);
        font = load(standardFont);
    }
    if (font)
        useFont(font, ini);
    else
        logText("No panel font: the texts appear in the engine's own.\n");
}

void PanelManager::useFont(FlexibleFont* font, IniFile* ini) {
    const ScreenMetrics& metrics = context_->getScreenMetrics();
    const irr::core::dimension2d<irr::u32> button(static_cast<irr::u32>(metrics.buttonWidth),
                                                  static_cast<irr::u32>(metrics.buttonHeight));
    const int offset = std::max(-10, std::min(toInt(readValue(*ini, "", "fontOffset")), 10));
    const float scale = font->calculateOptimalScale(L"O_O_O_O_", button) * static_cast<float>(std::pow(1.1, offset));
    font->setDefaultScale(irr::core::vector2d<float>(scale, scale));
    context_->getIrrlichtDevice()->getGUIEnvironment()->getSkin()->setFont(font);
    font_ = font;
    messageBox_->forgetLayout();
}

void PanelManager::loadPanelSettingsFromIni(IniFile* ini, IProgressCallback* progress, bool reloadChart,
                                            bool reloadFonts) {
    fullScreenPanel_ = nullptr;
    readSettings(ini);
    if (reloadFonts)
        loadFontSettingsFromIni(ini);
    advance(progress);
    chart_.reset();
    chart_ = std::make_unique<ExtendedChart>(context_, reloadChart, progress, elementCacheSize, backgroundCacheSize);
    context_->getProcedureManager()->OnChartChanged();
    advance(progress);
    menu_ = std::make_unique<Menu>(context_, toBool(readValue(*ini, "", "useColoredButtons")));
    loadPanels(ini);
    advance(progress);
    overlays_ = std::make_unique<OverlayInstruments>(context_);
    applyStoredPreset(ini);
}

void PanelManager::readSettings(IniFile* ini) {
    metric_ = readValue(*ini, "", "units") == "m|km|km/h";
    irrelevantAirspaces_.clear();
    for (const std::string& entry : parseSeperatedString(readValue(*ini, "", "blacklist"), ',')) {
        irrelevantAirspaces_.push_back(withoutSpaces(entry));
        logText("irrelevantAirspaces: " + irrelevantAirspaces_.back() + "\n");
    }
    messagesDisabled_ = toBool(readValue(*ini, "", "messagesDisabled"));
    if (messagesDisabled_)
        messageBox_->hide();
    drawFps_ = toBool(readValue(*ini, "", "drawFPS"));
    terrainDetailLevel_ = detailLevelOf(readValue(*ini, "", "terrainDetailLevel"));
}

void PanelManager::loadPanels(IniFile* ini) {
    loaded_ = *ini;
    layout_ = PageLayout::read(*ini, panelArea(), context_->isPortrait());
    panels_.reserve(panels_.size() + layout_.panels.size());
    for (const PageLayout::Panel& place : layout_.panels) {
        IPanelFactory* factory = getPanelFactory(place.factoryIndex);
        if (!factory)
            continue;
        factory->loadSetupFromIni(ini, place.section);
        std::unique_ptr<IPanel> panel = factory->Create();
        if (!panel)
            continue;
        panel->setFactory(factory);
        panels_.push_back({std::move(panel), place.page, place.rect, place.section});
    }
    currentPage_ = std::min(currentPage_, layout_.pageCount - 1);
    notePage();
}

void PanelManager::applyStoredPreset(IniFile* ini) {
    const int preset = toInt(readValue(*ini, "", "optimized"), -1);
    if (preset >= 0 && preset < IPanel::OPTIMIZED_NONE)
        applyOptimizedSettings(static_cast<IPanel::OptimizedSettings>(preset));
    else
        menu_->forceShowOptimizedSettings(true);
}

void PanelManager::unload() {
    manual_.reset();
    context_->getIrrlichtDevice()->getGUIEnvironment()->clear();
    fullScreenPanel_ = nullptr;
    panels_.clear();
    menu_.reset();
    context_->getIrrlichtDevice()->getGUIEnvironment()->clear();
    chart_.reset();
    overlays_.reset();
    layout_ = PageLayout();
    loaded_ = IniFile();
    currentPage_ = 0;
    clearNonMessageYArea();
}

void PanelManager::selectPanelSettings() {
    hideAllPanelGUI();
    IniFile config(context_->getConfigPath());
    if (!PanelSetupScreen(context_, config, panelArea()).run())
        return;
    showState(context_->getIrrlichtDevice(), L"Please wait...");
    unload();
    loadPanelSettingsFromIni(&config, nullptr, false, true);
}

void PanelManager::writeOptimizedSetting(IPanel::OptimizedSettings settings) {
    const std::string path = context_->getConfigPath();
    IniFile config(path);
    config.set("", "optimized", settings < IPanel::OPTIMIZED_NONE ? toText(settings) : std::string());
    if (config.Save(path))
        return;
    logText("The chosen preset could not be saved to " + path + "\n");
    setMessage(this, "The choice could not be saved and ends with this flight.", MESSAGE_YELLOW,
               saveTroubleMilliseconds);
}

} // namespace skyvane
