#pragma once

#include "core/engine/EngineRef.h"
#include "gui/windows/GUI.h"

#include <irrlicht.h>
#include <memory>
#include <string>

namespace skyvane {

class CHyperTextElement;
class Context;
class IChartElement;
class PreviewPane;

/// What the charts know of one element: its sketch, its frequencies and its description, with the search box that
/// chooses another one. It stands in a rectangle of a panel or of a window; main thread only.
///
/// Its weather joins with the reports.
class DetailsView {
public:
    enum class Action { None, Maps };

    /// Null as parent is the whole screen. `area` is relative to the parent; `spareHeight` pixels above the buttons
    /// stay free. Shows the target of the current procedure.
    DetailsView(Context& context, irr::gui::IGUIElement* parent, const irr::core::rect<int>& area, int spareHeight);
    ~DetailsView();
    DetailsView(const DetailsView&) = delete;
    DetailsView& operator=(const DetailsView&) = delete;

    void setVisible(bool visible);
    bool isVisible() const;
    /// The element of that id of the charts; without it, or with RecentRing::Empty, the view says that there is none.
    void show(int id);
    /// The one that the current procedure leads to.
    void showDestination();
    /// The charts have changed: what is shown is read again.
    void refresh();
    /// Of the queue; what the owner is asked to do.
    Action processEvent(const irr::SEvent& event);
    irr::gui::IGUIElement* getMapsButton() const { return gui_->getElement("bmaps"); }
    /// The row of buttons, in pixels of the screen.
    irr::core::rect<int> getButtonRow() const;

private:
    IChartElement* element() const;
    void setSearchBoxEnabled(bool enabled);
    void updateVisibility();
    void select();
    void showTitle();
    void showText();
    void showFrequencies();
    void addFrequenciesToListbox(const wchar_t* heading, const std::vector<std::string>& rows);
    void drawSketch(const irr::core::rect<int>& rect);

    Context& context_;
    EngineRef<irr::gui::IGUIElement> container_;
    std::unique_ptr<GUI> gui_;
    EngineRef<CHyperTextElement> text_;
    EngineRef<irr::gui::IGUIElement> sketch_;
    int id_;
    bool isSearching_ = false;
};

} // namespace skyvane
