#pragma once

#include "core/engine/EngineRef.h"
#include "gui/elements/AggregatableGUIElement.h"

#include <array>

namespace skyvane {

class Drawer2D;

/// A texture as a child of a layout, multiplied with a colour per corner (upper left, upper right, lower left, lower
/// right). It fills its place: to keep its shape, wish so.
class BeautifulGUIImage : public AggregatableGUIElement {
public:
    /// The drawer outlives the element; a null texture draws nothing.
    BeautifulGUIImage(irr::gui::IGUIEnvironment* environment, Drawer2D* drawer, irr::video::ITexture* texture,
                      const std::array<irr::video::SColor, 4>& colors, const LayoutWish& wish = LayoutWish(),
                      int id = -1, void* data = nullptr);

    void setTexture(irr::video::ITexture* texture);
    void setColors(const std::array<irr::video::SColor, 4>& colors) { colors_ = colors; }

    void draw() override;

private:
    Drawer2D* drawer_;
    EngineRef<irr::video::ITexture> texture_;
    std::array<irr::video::SColor, 4> colors_;
};

} // namespace skyvane
