#pragma once

#include "core/engine/EngineRef.h"
#include "displays/layout/PanelArrangement.h"
#include "gui/windows/GUI.h"

#include <irrlicht.h>
#include <memory>
#include <string>
#include <vector>

namespace skyvane {

class Context;
class IniFile;
class IPanelFactory;

/// The screen on which the pilot arranges the panels of his pages: adds, edits, moves and removes them, in the document
/// alone. Sensors and messages go on meanwhile.
///
///     IniFile config(path);
///     bool saved = PanelSetupScreen(context, config, area).run();   // the screen is gone again
///
/// Main thread only.
class PanelSetupScreen {
public:
    /// Context and document outlive the screen.
    PanelSetupScreen(Context* context, IniFile& document, const PanelArea& area);
    ~PanelSetupScreen();
    PanelSetupScreen(const PanelSetupScreen&) = delete;
    PanelSetupScreen& operator=(const PanelSetupScreen&) = delete;

    /// Waits for the pilot. True when he pressed "Ok" and the document is saved; one that can't be saved keeps the
    /// screen open. False when he cancelled, or the program's window was closed.
    bool run();

private:
    enum class State { Open, Saved, Cancelled };
    struct Action {
        const char* button;
        void (PanelSetupScreen::*run)();
    };
    static const Action actions[];

    void onEvent(const irr::SEvent& event);
    void onList(irr::gui::IGUIElement* list);
    void add();
    void edit();
    bool ask(IPanelFactory& factory, const std::string& section);
    void remove() { arrangement_.remove(); }
    void moveToTop() { arrangement_.moveToTop(); }
    void movePageDown() { arrangement_.moveToPage(-1); }
    void movePageUp() { arrangement_.moveToPage(1); }
    void showPreviousPage() { arrangement_.turnPage(-1); }
    void showNextPage() { arrangement_.turnPage(1); }
    void help();
    void accept();
    void cancel() { state_ = State::Cancelled; }

    void listFactories();
    /// Brings lists, texts and buttons up to what the arrangement says.
    void refresh();
    void refreshPanels();
    void refreshButtons();

    Context* context_;
    irr::gui::IGUIEnvironment* environment_;
    IniFile& document_;
    PanelArrangement arrangement_;
    EngineRef<irr::gui::IGUIWindow> window_;
    std::unique_ptr<GUI> gui_;
    irr::gui::IGUIListBox* available_ = nullptr;
    irr::gui::IGUIListBox* actual_ = nullptr;
    std::vector<int> factoryRows_;         ///< The factory of each row of the available ones.
    std::vector<int> panelRows_;           ///< The panel of each row of the actual ones.
    std::vector<std::string> panelTitles_; ///< What those rows say.
    State state_ = State::Open;
};

} // namespace skyvane
