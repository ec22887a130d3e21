#pragma once

#include "gui/elements/IAggregatableGUIElement.h"

namespace skyvane {

/// What every child of a layout needs to know about its place.
struct LayoutWish {
    float recommendedSpace = 1.0f;
    float aspectRatio = 1.0f;
    bool maintainAspectRatio = false;
};

/// The fields of a child of a layout. Made without a parent: its layout adopts it.
class AggregatableGUIElement : public IAggregatableGUIElement {
public:
    AggregatableGUIElement(irr::gui::IGUIEnvironment* environment, const LayoutWish& wish, int id, void* data,
                           irr::gui::IGUIElement* parent = nullptr,
                           const irr::core::rect<irr::s32>& rectangle = {0, 0, 1, 1})
        : IAggregatableGUIElement(irr::gui::EGUIET_ELEMENT, environment, parent, id, rectangle), wish_(wish),
          data_(data) {}

    float getAspectRatio() override { return wish_.aspectRatio; }
    bool mustMaintainAspectRatio() override { return wish_.maintainAspectRatio; }
    float getRecommendedSpace() override { return wish_.recommendedSpace; }
    bool isActive() override { return active_; }
    void setActivationLock(bool locked) override { locked_ = locked; }
    void setActive(bool active) override { active_ = active; }
    void* getData() override { return data_; }
    void setData(void* data) override { data_ = data; }

protected:
    bool isLocked() const { return locked_; }

private:
    LayoutWish wish_;
    void* data_;
    bool active_ = false;
    bool locked_ = false;
};

} // namespace skyvane
