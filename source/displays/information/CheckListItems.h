#pragma once

#include "displays/checklist/CheckListProgress.h"
#include "displays/instruments/PanelTexture.h"
#include "gui/elements/IScrollable.h"
#include "gui/font/CachedText.h"
#include "gui/layoutmath/FingerScroll.h"

#include <irrlicht.h>
#include <memory>
#include <vector>

namespace skyvane {

class Context;
class ScrollBar;

/// The items of a checklist as a list that a finger scrolls. A tap ticks an item off, another opens it again; the next
/// open item is highlighted and comes into view. A line that is too long for its place is wrapped.
///
/// Allocates nothing in a frame in which nothing changed. Main thread only.
class CheckListItems : public irr::gui::IGUIElement, public IScrollable {
public:
    /// The bar may live on.
    ~CheckListItems() override;

    /// The parent holds it, and a scroll bar at its right edge where it is needed.
    static CheckListItems* add(Context& context, irr::gui::IGUIElement* parent, const irr::core::rect<int>& place);

    /// All items open, from the top.
    void begin(const std::list<std::string>& lines);
    /// The lines may have been edited: begins anew when they were.
    void update(const std::list<std::string>& lines);
    const CheckListProgress& getProgress() const { return progress_; }

    void setScrollShare(float share) override;
    void setScrollBar(ScrollBar* bar) override { bar_ = bar; }
    void draw() override;
    bool OnEvent(const irr::SEvent& event) override;

private:
    CheckListItems(Context& context, irr::gui::IGUIElement* parent, const irr::core::rect<int>& place);

    int barWidth() const { return edge_ * 4 / 5; }
    /// Of the rows; a bar that is shown takes some of it.
    irr::core::rect<int> view() const;
    irr::core::rect<int> rowPlace(int item) const;
    void layOut();
    void scrolled();
    void showNext();
    bool handleMouse(const irr::SEvent::SMouseInput& mouse);
    void tap(int y);
    void drawItem(int item, const irr::core::rect<int>& clip);
    void drawBox(const irr::core::rect<int>& box, const irr::core::rect<int>& clip, bool isDone);

    Context& context_;
    CheckListProgress progress_;
    std::vector<std::wstring> wrapped_;
    std::vector<std::unique_ptr<CachedText>> texts_; ///< Made when an item is drawn first.
    RowStack rows_;
    FingerScroll scroll_;
    ScrollBar* bar_ = nullptr;
    PanelTexture tick_;
    int edge_; ///< Of a box, pixels.
};

} // namespace skyvane
