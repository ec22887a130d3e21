#pragma once

#include "gui/elements/AggregatableGUIElement.h"
#include "gui/elements/IScrollable.h"
#include "gui/layoutmath/FingerScroll.h"

#include <list>
#include <vector>

namespace skyvane {

/// Lays its children out by weights in a row or a column, scrolls them by finger, and lets some of them be chosen.
///
///     auto* list = new AggregateGUIElement(environment, options, {title}, {rowA, rowB}, parent, rect);
///     list->drop();   // the parent keeps it, as with every element
///
/// Children come without a parent; the list takes over their makers' references. Those of the first list are only laid
/// out; those of the second, which follow, become active when a finger taps them: then the parent hears
/// ElementActivated with the child as Caller and this as Element. A finger that moves further than a hundredth of the
/// length scrolls and neither clicks nor activates; the content glides on when it leaves. Layout happens when the
/// position changes, not per frame; nothing is allocated in a frame. Main thread only.
class AggregateGUIElement : public AggregatableGUIElement, public IScrollable {
public:
    struct Options {
        LayoutWish wish;
        /// Times each child's weight: in a scrolled list, a child of weight 1 is this share of the view long.
        float subElementWeight = 1.0f;
        bool horizontal = false;
        bool scrollable = false;
        bool multiSelectable = false;
        int id = -1;
        void* data = nullptr;
    };
    using Elements = std::list<IAggregatableGUIElement*>;

    AggregateGUIElement(irr::gui::IGUIEnvironment* environment, const Options& options, const Elements& subElements,
                        const Elements& activatedSubElements, irr::gui::IGUIElement* parent = nullptr,
                        const irr::core::rect<irr::s32>& rectangle = {0, 0, 1, 1});
    ~AggregateGUIElement() override;

    /// Takes over the reference, and lays all children out anew: many are better given to the constructor.
    void addSubElement(IAggregatableGUIElement* child, bool canBeActivated);
    /// The content begins at its start again.
    void removeSubElements();
    unsigned getSubElementCount() const { return static_cast<unsigned>(children_.size()); }

    /// The one active child; false, and null, when none or several are.
    bool getSingleSelected(IAggregatableGUIElement** selected) const;
    const std::vector<IAggregatableGUIElement*>& getActivatableElements() const { return activatable_; }

    void setActivationLock(bool locked) override;
    void setScrollShare(float share) override;
    void setScrollBar(ScrollBar* bar) override;
    int getScrollOffset() const { return scroll_.getOffset(); }
    /// Whether the content is longer than the view.
    bool canScroll() const { return options_.scrollable && scroll_.canScroll(); }
    /// Scrolls as far as needed to bring a child, or something in one, into the view.
    void scrollTo(const irr::gui::IGUIElement* element);

    void updateAbsolutePosition() override;
    void draw() override;
    bool OnEvent(const irr::SEvent& event) override;
    void removeChild(irr::gui::IGUIElement* child) override;

private:
    void insert(IAggregatableGUIElement* child, bool canBeActivated);
    void updateSubElementsPosition(int offset);
    void updateScrollSpeed();
    void scrolled();
    void drawRows() const;
    bool handleMouse(const irr::SEvent::SMouseInput& mouse);
    bool drag(const irr::SEvent::SMouseInput& mouse);
    bool finishDrag(const irr::core::position2di* tapAt);
    void activate(IAggregatableGUIElement* child);
    void select(const IAggregatableGUIElement* child);
    IAggregatableGUIElement* activatableAt(const irr::core::position2di& place) const;
    int along(const irr::SEvent::SMouseInput& mouse) const { return options_.horizontal ? mouse.X : mouse.Y; }

    Options options_;
    std::vector<IAggregatableGUIElement*> children_; ///< In the order of the layout.
    std::vector<IAggregatableGUIElement*> activatable_;
    FingerScroll scroll_;
    ScrollBar* bar_ = nullptr;
    const IAggregatableGUIElement* touched_ = nullptr; ///< Under the finger; only compared.
};

} // namespace skyvane
