#pragma once

#include "core/engine/EngineRef.h"
#include "displays/layout/PageLayout.h"

#include <irrlicht.h>

namespace skyvane {

class Context;
struct ScreenMetrics;

/// The row of buttons along the lower edge of the screen: "Menu" on the left, the arrows that turn the pages on the
/// right, and between them the number of the page. As high as a finger needs. Main thread only.
class MenuBar {
public:
    enum class Button { None, Menu, PreviousPage, NextPage };

    /// What the bar leaves of the screen to the panels.
    static PanelArea panelArea(const ScreenMetrics& metrics);

    MenuBar(Context* context, bool useColoredButtons);
    ~MenuBar();
    MenuBar(const MenuBar&) = delete;
    MenuBar& operator=(const MenuBar&) = delete;

    /// Which button the event clicks.
    Button clickedBy(const irr::SEvent& event) const;
    /// `page` counts from 0.
    void showPage(int page, int pageCount);
    /// Says beside the page that what the displays show is simulated.
    void showSimulation(bool isSimulated);
    /// The "Menu" button, for the back key.
    irr::gui::IGUIElement* getMenuButton() const { return menu_; }
    void setVisible(bool visible);
    void setEnabled(bool enabled);

private:
    void showText();
    irr::gui::IGUIButton* addButton(const wchar_t* label, int left, int width, const char* style);

    irr::gui::IGUIEnvironment* environment_;
    EngineRef<irr::gui::IGUIElement> pane_; ///< Holds the elements.
    irr::gui::IGUIButton* menu_;
    irr::gui::IGUIButton* previous_;
    irr::gui::IGUIButton* next_;
    irr::gui::IGUIStaticText* pageText_;
    int page_ = -1;
    int pageCount_ = -1;
    bool isSimulated_ = false;
};

} // namespace skyvane
