#pragma once

#include "chart/names/RecentRing.h"
#include "core/engine/EngineRef.h"
#include "procedures/framework/IndicatedProcedure.h"

#include <irrlicht.h>
#include <optional>
#include <string>
#include <vector>

namespace skyvane {

class Context;
class IChartElement;

/// The elements of a window that a search box works with. Each may be null: what isn't there isn't searched, shown or
/// pressed.
struct SearchBoxElements {
    irr::gui::IGUIEditBox* edit = nullptr;   ///< What is looked for; of the id DestinationEdit.
    irr::gui::IGUIListBox* list = nullptr;   ///< The destinations found.
    irr::gui::IGUIElement* text = nullptr;   ///< Distance and bearing of the chosen one, two lines.
    irr::gui::IGUIElement* hint = nullptr;   ///< What to do while the list is empty; lies on it, hidden otherwise.
    irr::gui::IGUICheckBox* here = nullptr;  ///< Procedures at the present position, without a destination.
    irr::gui::IGUIElement* recent = nullptr; ///< The button that lists the recent destinations.
    irr::gui::IGUIElement* nearest = nullptr;
    irr::gui::IGUIElement* direct = nullptr;
    irr::gui::IGUIListBox* procedures = nullptr; ///< What can be flown to the destination.
};

/// The search box of dialogs that ask for a destination: type-ahead by names, the recent destinations, the airports
/// near by, and the procedures that lead to what was chosen. One for the whole program (PanelManager's); the window
/// that is open has it.
///
///     search.init(nullptr, 0, elements);            // the window stands, its elements are empty
///     ... if (search.processEvent(event)) close();  // each event of the queue while it is open
///     search.finish();                              // only when the pilot has confirmed
///     search.release();                             // before the window goes
///
/// What is selected is read by getSelectedChartElement(). Main thread only.
class SearchBoxHandler {
public:
    /// Loads the recent destinations. The context outlives the handler.
    explicit SearchBoxHandler(Context* context);

    /// Takes the elements and begins a search: for the element of the charts with that id, or for what the current
    /// procedure leads to when there is none. `keepsProcedure` keeps the row of the procedure chosen last, as the same
    /// destination as last time does. The element is used before the next call of the charts only.
    void init(const IChartElement* element, int id, const SearchBoxElements& elements, bool keepsProcedure = false);
    /// Lets go of the elements.
    void release();

    /// True when the event ended the dialog: the button of the direct way has put its procedure into the plan.
    bool processEvent(const irr::SEvent& event);
    /// Fills the list of destinations with the element alone, null for what the text asks for.
    void calculateDestination(const IChartElement* element, int id);
    /// Fills the list of procedures and the distance.
    void calculateProcedures();

    /// -9999999 without a selected row.
    int getSelectedChartElement() const;
    /// Null without one, and for a row that says why there is none. Valid until the next event.
    IndicatedProcedure* getSelectedProcedure();
    bool isAtPresentPosition() const;
    /// There is a selected destination that can be flown to directly.
    bool isDirectPossible() const;
    /// Draws what the selected procedure looks like; nothing without one.
    void renderPreview(const irr::core::rect<int>& rect);
    /// Notes the selected destination as the most recent one.
    void finish();

private:
    /// As SearchBoxElements, held: a window that went too early leaves nothing that dangles.
    struct Held {
        EngineRef<irr::gui::IGUIEditBox> edit;
        EngineRef<irr::gui::IGUIListBox> list;
        EngineRef<irr::gui::IGUIElement> text;
        EngineRef<irr::gui::IGUIElement> hint;
        EngineRef<irr::gui::IGUICheckBox> here;
        EngineRef<irr::gui::IGUIElement> recent;
        EngineRef<irr::gui::IGUIElement> nearest;
        EngineRef<irr::gui::IGUIElement> direct;
        EngineRef<irr::gui::IGUIListBox> procedures;
    };

    std::wstring typedText() const;
    void searchFor(const char* text);
    void showHint();
    void showDistance(const IChartElement* element);
    void onHereChanged();
    void focusEdit();
    IChartElement* selectedElement() const;
    bool flyDirect();

    Context* context_;
    RecentRing recent_;
    Held held_;
    std::vector<int> ids_;                  ///< Of the rows of destinations.
    std::vector<IndicatedProcedure> lines_; ///< Of the rows of procedures.
    int previousRow_ = -1;
    int previousId_ = RecentRing::Empty;
};

} // namespace skyvane
