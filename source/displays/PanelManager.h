#pragma once

#include "core/ini/IniFile.h"
#include "displays/IPanel.h"
#include "displays/IPanelFactory.h"
#include "displays/layout/MessageBoard.h"
#include "displays/layout/MessageBox.h"
#include "displays/layout/PageLayout.h"
#include "displays/panels/RenderTargetPool.h"

#include <irrlicht.h>
#include <memory>
#include <string>
#include <vector>

namespace skyvane {

class Context;
class ExtendedChart;
class FlexibleFont;
class IChart;
class IProgressCallback;
class ManualWindow;
class Menu;
class MessageBoxView;
class OverlayInstruments;
class SearchBoxHandler;
class TerrainManager;

/// Owns the panels and their pages, the order in which they are drawn and offered events, the message box, the shared
/// render targets and the panel font. Main thread only.
///
/// Panels share what the menu's bar leaves of the screen; its arrows, Page Up and Page Down turn the pages. The
/// details panel and the overlays join with their own work.
class PanelManager {
public:
    explicit PanelManager(Context* context);
    ~PanelManager();
    PanelManager(const PanelManager&) = delete;
    PanelManager& operator=(const PanelManager&) = delete;

    /// A null factory keeps the place of a panel to come: sections that name it are skipped.
    void addPanelFactory(std::unique_ptr<IPanelFactory> factory);
    const std::vector<std::unique_ptr<IPanelFactory>>& getPanelFactories() const { return factories_; }
    /// Null for an index out of the list, and for the place of a panel to come.
    IPanelFactory* getPanelFactory(int index) const;

    void loadFontSettingsFromIni(IniFile* ini);
    void loadPanelSettingsFromIni(IniFile* ini, IProgressCallback* progress, bool reloadChart, bool reloadFonts);
    void unload();

    void Render();
    /// Over the GUI, under the messages.
    void renderInMenuPreview();
    void RenderAfterGUI();
    /// The page `pageOffset` away from the current one, as previews, into the rectangle, which stands for the screen.
    void renderPagePreview(irr::core::rect<int> rect, int pageOffset);
    /// False when the event was consumed.
    bool processEvent(irr::SEvent event);
    /// The part of it for what lies over dialogs too, a message that is dismissed and an overlay that is tapped: true
    /// when the event was that. For frames whose events a dialog takes.
    bool processEventOverDialog(const irr::SEvent& event);

    void nextPage();
    void previousPage();
    /// The first page with a panel of that name; without one the page stays.
    void showPageWith(const std::string& panelName);
    int getCurrentPage() const { return currentPage_; }
    int getPageCount() const { return layout_.pageCount; }

    /// Null ends the full screen. The panel is one of this manager's.
    void setFullScreenPanel(IPanel* panel);
    IPanel* getFullScreenPanel() const { return fullScreenPanel_; }
    /// While locked, mouse and touch input reaches no panel.
    void setLock(bool locked) { locked_ = locked; }
    void hideAllPanelGUI();

    /// A box with that text; an empty text does nothing.
    void setMessage(const std::string& text, irr::video::SColor box, irr::video::SColor textColor,
                    int durationMilliseconds, bool close);
    /// A message that an owner keeps up; a negative time-out means none.
    void setMessage(void* owner, const std::string& text, MESSAGECOLOR level, int timeoutMilliseconds);
    void removeMessage(void* owner);
    void setAcceptMessagesEnabled(bool enabled) { board_.setAccepting(enabled); }
    bool isAcceptMessagesEnabled() const { return board_.isAccepting(); }

    /// A vertical range of the screen that a panel claims: the message box moves above it.
    void updateNonMessageYArea(int from, int to);
    void clearNonMessageYArea();

    /// A square target that panels with other owners and ids may share; released by removeRequest.
    irr::video::ITexture* requestRTT(void* owner, int id, int size);
    void removeRequest(irr::video::ITexture* texture, void* owner, int id);

    /// Instruments over everything else, at a place of the screen; null keeps the place that was given before. A tap on
    /// one of them minimises both, another brings them back.
    void setAttitudeIndicatorOverlay(bool visible, const irr::core::rect<int>* place);
    void setCompassOverlay(bool visible, const irr::core::rect<int>* place);

    /// A mesh of the file, its buffers kept by the driver; null when it can't be read. The engine's cache holds it
    /// until memory runs short: whoever keeps it grabs it.
    irr::scene::IMesh* getMeshHWMapped(const irr::core::string<char>& name);

    // Notifications, to every panel in list order.
    void OnChartChanged();
    void OnProcedureChanged();
    void OnFISDataChanged(bool changed);
    void OnProcedureNodesDelete();
    void OnProcedureMeshExchanged();
    void OnTerrainNodesDelete();
    void OnTerrainMeshExchanged();
    void OnWideTerrainNodesDelete();
    void OnWideTerrainMeshExchanged();
    /// Gives back what can be loaded again.
    void OnMustFreeMemory();

    void applyOptimizedSettings(IPanel::OptimizedSettings settings);
    /// To `optimized` of the configuration document; OPTIMIZED_NONE writes an empty text. The pilot hears of a failure.
    void writeOptimizedSetting(IPanel::OptimizedSettings settings);
    /// The screen on which the pilot arranges the panels, until he is done. "Ok" loads all panels anew, and whatever is
    /// made with them: who calls this from there touches nothing of its own afterwards.
    void selectPanelSettings();

    /// Over everything, on that page. The page that is shown stays while the manual is open already.
    void setManualVisible(const std::string& page = "index.hti");
    /// What the charts know of the element of that id, over everything, until the pilot goes back.
    void showDetails(int id);
    bool isManualVisible() const { return manual_ != nullptr; }
    /// Frames until the pilot has closed the manual; sensors go on.
    void blockForManualExit();

    /// The line around a panel that sets it off from its neighbours.
    void drawPanelSeperator(const irr::core::rect<int>& panel, irr::video::SColor color);

    bool isMetric() const { return metric_; }
    bool isDrawFPS() const { return drawFps_; }
    int getTerrainDetailLevel() const { return terrainDetailLevel_; }
    unsigned getIrrelevantAirspaceCount() const { return static_cast<unsigned>(irrelevantAirspaces_.size()); }
    std::string getIrrelevantAirspace(unsigned index) const;
    FlexibleFont* getFlexibleFont() const { return font_; }
    /// Null before the panels are loaded; each loading makes another one.
    Menu* getMenu() const { return menu_.get(); }
    /// Null until panels are loaded, and while it loads itself.
    IChart* getChart() const;
    /// The chart's; null without one.
    TerrainManager* getTerrainManager() const;
    /// Never null; of the window that asks for a destination now.
    SearchBoxHandler* getSearchBoxHandler() const { return searchBox_.get(); }

private:
    struct LoadedPanel {
        std::unique_ptr<IPanel> panel;
        int page;
        irr::core::rect<int> rect;
        std::string section; ///< Of the loaded document.
    };

    void readSettings(IniFile* ini);
    void loadPanels(IniFile* ini);
    void applyStoredPreset(IniFile* ini);
    void useFont(FlexibleFont* font, IniFile* ini);
    PanelArea panelArea() const;
    MessageSpace messageSpace() const;
    void turnPage(int step);
    void renderPage();
    void renderPageNumber();
    void notePage();
    /// While messages are off, the one of before stays out of sight too.
    bool isMessageBoxShown() const { return !messagesDisabled_ && board_.isAccepting(); }
    bool processMessageBoxEvent(const irr::SEvent& event);
    void keepManualClear();
    bool processOverlayEvent(const irr::SEvent& event);
    bool processManualEvent(const irr::SEvent& event);
    void closeManual();
    bool processPageKey(const irr::SEvent& event);
    bool isVisibleGUIElementAt(irr::core::vector2d<int> position);
    bool offerToPanels(const irr::SEvent& event);
    template <class Notify>
    void forEachPanel(Notify notify) {
        for (LoadedPanel& loaded : panels_)
            notify(*loaded.panel);
    }

    Context* context_;
    std::vector<std::unique_ptr<IPanelFactory>> factories_;
    std::unique_ptr<ExtendedChart> chart_;
    std::unique_ptr<Menu> menu_;
    std::unique_ptr<ManualWindow> manual_; ///< While it is open.
    std::vector<LoadedPanel> panels_;      ///< In section order: drawn first to last, offered events last to first.
    PageLayout layout_;
    IniFile loaded_; ///< The document that the panels were made from, for their previews.
    int currentPage_ = 0;
    irr::core::rect<int> fullRect_;
    ClaimedYArea claimed_;
    irr::core::stringw pageNumber_; ///< "2 / 7", shown for a moment on a page without panels.
    unsigned pageTurnMilliseconds_ = 0;
    irr::core::vector2d<int> lastMousePosition_;
    bool mouseOverGUI_ = false;
    IPanel* fullScreenPanel_ = nullptr;
    bool locked_ = false;
    bool metric_ = false;
    bool drawFps_ = false;
    bool messagesDisabled_ = false;
    int terrainDetailLevel_ = 0;
    std::vector<std::string> irrelevantAirspaces_;
    FlexibleFont* font_ = nullptr; ///< Owned by the font manager.
    MessageBoard board_;
    std::unique_ptr<MessageBoxView> messageBox_;
    RenderTargetPool targets_;
    std::unique_ptr<OverlayInstruments> overlays_; ///< While panels are loaded.
    std::unique_ptr<SearchBoxHandler> searchBox_;
};

} // namespace skyvane
