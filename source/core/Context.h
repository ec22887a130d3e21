#pragma once

#include "chart/elements/ElementFactory.h"
#include "core/ICommonAppContext.h"
#include "core/ScreenMetrics.h"
#include "core/engine/EngineRef.h"
#include "core/events/IEventHost.h"
#include "core/system/FramePacer.h"
#include "procedures/framework/IProcedureHost.h"
#include "sensors/ISensorHost.h"

#include <irrlicht.h>
#include <memory>
#include <string>

namespace skyvane {

struct ChartPosition;
class AircraftManager;
class ChartElementRenderers;
class EventReceiver;
class FlexibleFontManager;
class IChartElementRenderer;
class IFrameRunner;
class IProcedure;
class IProgressCallback;
class IniFile;
class InputSystem;
class Logger;
class MaterialManager;
class PanelManager;
class ProcedureManager;
class SensorDialogs;
class SensorManager;
class Skin;
class SystemManager;
class ThreadInfo;
class WifiControl;

/// The application: owns every manager, makes them in the order of need and ends them in reverse. Made by main, used
/// on the main thread; other threads may read its pointers after construction and call getPath.
class Context : public ICommonAppContext, public ISensorHost, public IProcedureHost, public IEventHost {
public:
    /// The device outlives the context. `full` false stops after the managers, before any factory is registered.
    Context(irr::IrrlichtDevice* device, const char* argv0, bool full);
    ~Context() override;
    Context(const Context&) = delete;
    Context& operator=(const Context&) = delete;

    IMultiEventReceiver* getEventReceiver() override;
    Drawer2D* getDrawer() override { return drawer_.get(); }
    irr::IrrlichtDevice* getIrrlichtDevice() override { return device_; }
    FlexibleFont* getFlexibleFont() override;
    int getRecommendedButtonWidth() override { return metrics_.buttonWidth; }
    int getRecommendedButtonHeight() override { return metrics_.buttonHeight; }
    std::string getPath(const std::string& path) override;
    void setSoftInputVisibility(bool) override {}
    void gotoURL(const std::string& url) override;
    void gotoLocationApp(const ChartPosition& position);

    // ISensorHost; what asks for charts, sensors and the aircraft is IProcedureHost
    void pumpWindow() override;
    void showMessageBox(const std::string& text) override;
    void setMessage(void* owner, const std::string& text, MESSAGECOLOR level, int timeoutMilliseconds) override;
    void removeMessage(void* owner) override;
    std::string getConfigPath() override;
    void chooseProfile(IniFile& document, const std::vector<std::unique_ptr<IConfigOverride>>& profiles) override;
    IChartElementSource* getCharts() override;
    SensorManager* getSensorManager() override { return sensors_.get(); }
    Aircraft& getCurrentAircraft() override;

    const ScreenMetrics& getScreenMetrics() const { return metrics_; }
    bool isPortrait() const { return metrics_.portrait; }
    bool isRawGyro() const { return true; }
    double getScreenOrientationRoll(ThreadInfo*) const { return 0.0; }

    PanelManager* getPanelManager() { return panels_.get(); }
    SensorDialogs* getSensorDialogs() { return sensorDialogs_.get(); }
    WifiControl* getWifiControl() { return wifi_.get(); }
    AircraftManager* getAircraftManager() { return aircrafts_.get(); }
    MaterialManager* getMaterialManager() { return materials_.get(); }
    SystemManager* getSystemManager() { return system_.get(); }
    /// One for each kind of chart element.
    const ElementFactories& getChartElementFactories() const { return chartElementFactories_; }
    /// Never null once the managers stand, for a number that is no type neither.
    IChartElementRenderer* getChartElementRenderer(IChartElement::Type type) const;
    /// All of them; null until the managers stand.
    ChartElementRenderers* getChartElementRenderers() const { return renderers_.get(); }
    FlexibleFontManager* getFontManager() { return fontManager_.get(); }
    /// The procedure being flown; a NullProcedure without a flight plan. Never null.
    IProcedure* getCurrentProcedure();
    ProcedureManager* getProcedureManager() { return procedures_.get(); }
    EventReceiver* getEvents() { return events_.get(); }
    /// Null until the managers stand.
    InputSystem* getInputSystem() { return input_.get(); }
    Skin* getSkin() { return skin_; }
    /// Runs the frames of a dialog that waits (see ModalLoop); null before the first frame.
    IFrameRunner* getFrames() { return frames_; }
    void setFrames(IFrameRunner* frames) { frames_ = frames; }

    bool shallExit() const { return shallExit_; }
    void setShallExit(bool exit) { shallExit_ = exit; }

    /// The frame pacer: waits until at least 36 ms have passed since its last call.
    void yieldWhileInactive() { pacer_.wait(); }
    void OnMustFreeMemory() override;
    /// The next frame is saved as a picture before it is shown.
    void OnScreenshotKey() override { screenshotWanted_ = true; }
    /// Saves it when one is wanted; call it between the last drawing of a frame and endScene.
    void saveWantedScreenshot();
    /// Tells the user on the screen when the file is missing, then ends the program with an orderly exit code.
    void assertExistance(const std::string& path);

private:
    /// False for a document of another version; the standard one has replaced it then.
    bool loadConfig(IniFile& config);
    void makeManagers(IniFile& config);
    void loadSettings(IniFile& config, IProgressCallback& progress);
    void showStartMessages(bool updated);
    void logStep(const char* text);

    irr::IrrlichtDevice* device_;
    ScreenMetrics metrics_;
    std::unique_ptr<ThreadInfo> mainThreadInfo_;
    EngineRef<FlexibleFontManager> fontManager_;
    std::unique_ptr<Drawer2D> drawer_;
    std::unique_ptr<SystemManager> system_;
    Skin* skin_ = nullptr;
    IFrameRunner* frames_ = nullptr;
    std::unique_ptr<Logger> logger_;
    ElementFactories chartElementFactories_ = makeElementFactories();
    std::unique_ptr<PanelManager> panels_;
    std::unique_ptr<WifiControl> wifi_;
    std::unique_ptr<SensorDialogs> sensorDialogs_;
    std::unique_ptr<SensorManager> sensors_;
    std::unique_ptr<ProcedureManager> procedures_;
    std::unique_ptr<EventReceiver> events_;
    std::unique_ptr<InputSystem> input_;
    std::unique_ptr<AircraftManager> aircrafts_;
    std::unique_ptr<MaterialManager> materials_;
    std::unique_ptr<ChartElementRenderers> renderers_;
    FramePacer pacer_;
    bool shallExit_ = false;
    bool screenshotWanted_ = false;
};

} // namespace skyvane
