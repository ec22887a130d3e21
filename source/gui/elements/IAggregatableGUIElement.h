#pragma once

#include <irrlicht.h>

namespace skyvane {

/// Sent to the parent when an element has been activated: Caller is the element.
constexpr irr::gui::EGUI_EVENT_TYPE ElementActivated = static_cast<irr::gui::EGUI_EVENT_TYPE>(31);

/// A child of a layout: an element with a weight, perhaps a shape to keep, that may be chosen.
class IAggregatableGUIElement : public irr::gui::IGUIElement {
public:
    using IGUIElement::IGUIElement;

    /// Width to height.
    virtual float getAspectRatio() = 0;
    virtual bool mustMaintainAspectRatio() = 0;
    /// The weight in its parent's layout.
    virtual float getRecommendedSpace() = 0;
    virtual bool isActive() = 0;
    /// While locked, a finger that leaves activates and clicks nothing in here.
    virtual void setActivationLock(bool locked) = 0;
    virtual void setActive(bool active) = 0;
    /// The user's own.
    virtual void* getData() = 0;
    virtual void setData(void* data) = 0;
};

} // namespace skyvane
