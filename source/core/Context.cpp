#include "core/Context.h"

#include "chart/geodesy/ChartPosition.h"
#include "chart/store/IChart.h"
#include "core/Factories.h"
#include "core/FrameLoop.h"
#include "core/engine/LoadingProgressCallback.h"
#include "core/engine/MissingFileScreen.h"
#include "core/engine/Screenshot.h"
#include "core/events/EventReceiver.h"
#include "core/files/Paths.h"
#include "core/files/StandardDocuments.h"
#include "core/files/Version.h"
#include "core/ini/IniFile.h"
#include "core/ini/ReadValue.h"
#include "core/log/Logger.h"
#include "core/system/OpenUrl.h"
#include "core/system/SystemManager.h"
#include "core/text/Numbers.h"
#include "core/text/Utf8.h"
#include "core/threads/ThreadInfo.h"
#include "displays/PanelManager.h"
#include "displays/drawing/Drawer2D.h"
#include "displays/map/elements/ChartElementRenderers.h"
#include "displays/materials/MaterialManager.h"
#include "gui/font/BMFontLoader.h"
#include "gui/font/FlexibleFontManager.h"
#include "gui/input/InputSystem.h"
#include "gui/sensors/ProfileScreen.h"
#include "gui/sensors/SensorDialogs.h"
#include "gui/sensors/WifiControl.h"
#include "gui/skin/Skin.h"
#include "gui/windows/CMBox.h"
#include "procedures/ProcedureManager.h"
#include "procedures/aircraft/AircraftManager.h"
#include "sensors/SensorManager.h"
#include "sensors/profiles/ProfileQuestion.h"

#include <cstdio>
#include <cstdlib>

namespace skyvane {
namespace {

constexpr float LoadingStep = 1.0f / 12.0f;
constexpr unsigned EventCapacity = 200;
constexpr int StartMessageMilliseconds = 30000;

/// The loading screen, whose picture leaves the driver with it.
class LoadingScreen {
public:
    LoadingScreen(irr::IrrlichtDevice* device, const std::string& file)
        : driver_(device->getVideoDriver()), texture_(loadTexture(file)), progress_(device, texture_, LoadingStep) {}
    ~LoadingScreen() {
        if (texture_)
            driver_->removeTexture(texture_);
    }
    LoadingProgressCallback& getProgress() { return progress_; }

private:
    /// Drawn once at one size: smaller copies of it would only cost time.
    irr::video::ITexture* loadTexture(const std::string& file) {
        const bool former = driver_->getTextureCreationFlag(irr::video::ETCF_CREATE_MIP_MAPS);
        driver_->setTextureCreationFlag(irr::video::ETCF_CREATE_MIP_MAPS, false);
        irr::video::ITexture* texture = driver_->getTexture(file.c_str());
        driver_->setTextureCreationFlag(irr::video::ETCF_CREATE_MIP_MAPS, former);
        return texture;
    }

    irr::video::IVideoDriver* driver_;
    irr::video::ITexture* texture_;
    LoadingProgressCallback progress_;
};

} // namespace

Context::Context(irr::IrrlichtDevice* device, const char* argv0, bool full)
    : device_(device),
      metrics_(device->getVideoDriver()->getScreenSize().Width, device->getVideoDriver()->getScreenSize().Height),
      mainThreadInfo_(std::make_unique<ThreadInfo>(nullptr)) {
    fontManager_ = EngineRef<FlexibleFontManager>::adopt(new FlexibleFontManager(device));
    fontManager_->addFontLoader(EngineRef<BMFontLoader>::adopt(new BMFontLoader(fontManager_.get())).get());
    drawer_ = std::make_unique<Drawer2D>(device);
    system_ = std::make_unique<SystemManager>(this, drawer_.get(), argv0);

    LoadingScreen loading(device, getPath("media/loading.png"));
    loading.getProgress().nextStep();
    IniFile config(getConfigPath());
    const bool isCurrent = loadConfig(config);
    skin_ = system_->getSkin();
    logger_ = std::make_unique<Logger>(getPath("Logs/"));
    makeManagers(config);
    logStep("cpp: Set Up Factories");
    loading.getProgress().nextStep();
    if (full) {
        registerSensorFactories(*this, *sensors_);
        registerPanelFactories(*this, *panels_);
        registerProcedureFactories(*this, *procedures_);
        loadSettings(config, loading.getProgress());
    }
    showStartMessages(!isCurrent);
}

Context::~Context() {
    device_->setEventReceiver(nullptr);
    panels_.reset();
    renderers_.reset();
    procedures_.reset();
    sensors_.reset();
    sensorDialogs_.reset();
    wifi_.reset();
    drawer_.reset();
    input_.reset();
    aircrafts_.reset();
    events_.reset();
    materials_.reset();
    // The skin holds on to a font, and the fonts go with their manager.
    skin_->setFont(device_->getGUIEnvironment()->getBuiltInFont());
    fontManager_.reset();
    logger_.reset();
    mainThreadInfo_.reset();
    system_.reset();
}

bool Context::loadConfig(IniFile& config) {
    const auto number = [&config](const char* key) { return toUnsigned(readValue(config, "", key)); };
    if (number("major") == ConfigMajor && number("minor") == ConfigMinor)
        return true;
    config = IniFile();
    if (system_->writeStandardConfig())
        config = IniFile(getConfigPath());
    else
        config.setFromString(standardConfigINI);
    return false;
}

void Context::makeManagers(IniFile& config) {
    logStep("cpp: Create Managers");
    panels_ = std::make_unique<PanelManager>(this);
    logStep("cpp: Load Font");
    panels_->loadFontSettingsFromIni(&config);
    wifi_ = std::make_unique<WifiControl>();
    sensorDialogs_ = std::make_unique<SensorDialogs>(this, wifi_.get());
    sensors_ = std::make_unique<SensorManager>(this);
    procedures_ = std::make_unique<ProcedureManager>(this);
    events_ = std::make_unique<EventReceiver>(this, EventCapacity);
    input_ = std::make_unique<InputSystem>(this, keyBoardDefs, "media/change.png");
    aircrafts_ = std::make_unique<AircraftManager>(this);
    materials_ = std::make_unique<MaterialManager>(this);
    drawer_->setMaterialType(materials_->getMaterialType("Alpha"));
    renderers_ = std::make_unique<ChartElementRenderers>(this);
    device_->setEventReceiver(events_.get());
}

void Context::loadSettings(IniFile& config, IProgressCallback& progress) {
    logStep("cpp: Load Settings");
    progress.nextStep();
    input_->loadInputSettingsFromIni(&config);
    progress.nextStep();
    const bool asks = asksForProfile(config);
    if (asks) // a start without the question doesn't wait for its pictures
        registerSensorProfiles(*this, *sensors_);
    sensors_->loadSensorSettingsFromIni(&config, asks);
    progress.nextStep();
    panels_->loadPanelSettingsFromIni(&config, &progress, true, false);
    if (config.isAvailable("", "startPlan") && !config.get("", "startPlan").empty())
        procedures_->startWithFlightPlan(config.get("", "startPlan"));
    progress.nextStep();
}

void Context::showStartMessages(bool updated) {
    if (updated)
        panels_->setMessage(this, "Skyvane has been updated to version " + configVersionText() + ".", MESSAGE_GREY,
                            StartMessageMilliseconds);
    if (!system_->getStartTrouble().empty())
        panels_->setMessage(system_.get(), system_->getStartTrouble(), MESSAGE_YELLOW, StartMessageMilliseconds);
}

void Context::logStep(const char* text) {
    logger_->log(std::string(text) + "\n", Logger::ToBoth);
}

IMultiEventReceiver* Context::getEventReceiver() {
    return events_.get();
}

FlexibleFont* Context::getFlexibleFont() {
    return panels_ ? panels_->getFlexibleFont() : nullptr;
}

IChartElementRenderer* Context::getChartElementRenderer(IChartElement::Type type) const {
    return renderers_->get(type);
}

std::string Context::getPath(const std::string& path) {
    return system_->getAbsolutePath(path);
}

std::string Context::getConfigPath() {
    return getPath("data/config.ini");
}

IProcedure* Context::getCurrentProcedure() {
    return procedures_ ? procedures_->getCurrentProcedure() : nullptr;
}

IChartElementSource* Context::getCharts() {
    return panels_->getChart();
}

Aircraft& Context::getCurrentAircraft() {
    return aircrafts_->getCurrentAircraft();
}

void Context::gotoURL(const std::string& url) {
    const int result = std::system(openUrlCommand(url).c_str());
    char text[48];
    std::snprintf(text, sizeof text, "system result: %i\n", result);
    logText(text);
}

void Context::gotoLocationApp(const ChartPosition& position) {
    gotoURL(mapUrl(position));
}

void Context::pumpWindow() {
    device_->run();
}

void Context::showMessageBox(const std::string& text) {
    (new CMBox(device_->getGUIEnvironment(), nullptr, decodeUtf8(text), L"Ok", L""))->drop();
}

void Context::chooseProfile(IniFile& document, const std::vector<std::unique_ptr<IConfigOverride>>& profiles) {
    const auto ask = [&] { ProfileScreen(this, document, profiles).run(); };
    if (frames_)
        return ask();
    const FrameLoop frames(*this); // at the start, where the program's own frames begin later
    ask();
}

void Context::setMessage(void* owner, const std::string& text, MESSAGECOLOR level, int timeoutMilliseconds) {
    if (panels_)
        panels_->setMessage(owner, text, level, timeoutMilliseconds);
}

void Context::removeMessage(void* owner) {
    if (panels_)
        panels_->removeMessage(owner);
}

void Context::OnMustFreeMemory() {
    if (panels_)
        panels_->OnMustFreeMemory();
}

void Context::saveWantedScreenshot() {
    if (!screenshotWanted_)
        return;
    screenshotWanted_ = false;
    drawer_->flush();
    saveScreenshot(getPath("Screenshots/"), device_->getFileSystem(), device_->getVideoDriver());
}

void Context::assertExistance(const std::string& path) {
    if (fileExist(path))
        return;
    const std::string text = "File does not exist: " + path;
    logText(text + "\n");
    showMissingFileScreen(device_, decodeUtf8(text) + L"\nPlease install it again. Press any key to end.");
    std::exit(EXIT_FAILURE);
}

} // namespace skyvane
