#pragma once

#include "gui/elements/AggregatableGUIElement.h"

namespace skyvane {

class IScrollable;

/// A bar with a thumb that a finger drags; shows and moves the place of what it is linked to. The link ends by itself
/// when either is destroyed. Main thread only.
class ScrollBar : public AggregatableGUIElement {
public:
    /// `ratio`: how much of the content the view shows, 0 to 1.
    ScrollBar(irr::gui::IGUIEnvironment* environment, float ratio, bool horizontal, int id, void* data,
              const LayoutWish& wish = LayoutWish(), irr::gui::IGUIElement* parent = nullptr,
              const irr::core::rect<irr::s32>& rectangle = {0, 0, 1, 1});
    ~ScrollBar() override;

    void linkToScrollable(IScrollable* scrollable);
    void unlinkScrollable();

    /// 0 to 1, held to that; `notify` moves the linked content too.
    void setPos(float position, bool notify);
    float getPos() const { return position_; }
    void setRatio(float ratio);

    void draw() override;
    bool OnEvent(const irr::SEvent& event) override;

private:
    irr::core::rect<irr::s32> thumb() const;
    bool handleMouse(const irr::SEvent::SMouseInput& mouse);
    int along(const irr::core::position2di& place) const { return horizontal_ ? place.X : place.Y; }

    IScrollable* scrollable_ = nullptr;
    float ratio_;
    float position_ = 0.0f;
    bool horizontal_;
    bool dragging_ = false;
    int grabbedAt_ = 0; ///< Where in the thumb the finger holds it.
};

} // namespace skyvane
