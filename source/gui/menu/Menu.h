#pragma once

#include "displays/IPanel.h"
#include "gui/menu/MenuBar.h"

#include <memory>
#include <string>

namespace skyvane {

class MenuColumn;
class MenuWindow;
class PresetDialog;

/// The panel that is always there: the bar along the lower edge, the column of rows that "Menu" opens, with a preview
/// of the next page, and the small windows that rows open beside the instruments. What the rows are and do stands in
/// menuRows(). Made and ended by PanelManager with the other panels; main thread only.
class Menu : public IPanel {
public:
    Menu(Context* context, bool useColoredButtons);
    ~Menu() override;

    void OnPageChange() override;
    void OnProcedureChanged() override;
    /// Draws nothing; brings what the rows and windows show up to date. Once a frame.
    void render(irr::core::rect<int> screen) override;
    /// False when the event was the menu's. The menu may be gone then, replaced by another.
    bool processEvent(irr::SEvent event) override;
    std::string getName() override { return "Menu"; }
    /// Over the GUI, under the messages: the next page in small, while the column is open.
    void renderInMenuPreview();
    void renderAfterGUI() {}

    /// False hides the bar too, for what needs the whole screen.
    void setVisible(bool visible);
    /// False while a modal loop waits.
    void setEnabled(bool enabled);
    void hideMenuWindows();
    /// Hides what else stands as a window of the screen within that rectangle.
    void hideGUIWindowsExcept(irr::gui::IGUIWindow* kept, const irr::core::rect<int>& room);
    bool isOpen() const { return column_ != nullptr; }
    void showAltimeterSettings();
    void showFlightPlan();
    void showSimulator();
    void showForwarders();
    /// The window of the presets for maps; false hides it.
    void forceShowOptimizedSettings(bool show);
    bool isShowingOptimizedSettings() const;

private:
    void open();
    void close();
    void show(std::unique_ptr<MenuWindow> window);
    bool processBar(const irr::SEvent& event);
    bool processColumn(const irr::SEvent& event);
    bool processPress(const irr::SEvent::SMouseInput& mouse);
    void claimMessageSpace();
    irr::core::rect<int> previewRect() const;
    bool isPreviewShown() const;

    bool colored_;
    bool enabled_ = true;
    bool hasClaim_ = false; ///< To a part of the screen that messages keep clear of.
    MenuBar bar_;
    std::unique_ptr<MenuColumn> column_;    ///< While it is open.
    std::unique_ptr<PresetDialog> presets_; ///< Null until it is asked for.
    std::wstring plannedSpeed_;             ///< That the pilot has typed into the flight plan's window.
    std::unique_ptr<MenuWindow> window_;    ///< The one that is open; a closed one goes with the next event.
};

} // namespace skyvane
