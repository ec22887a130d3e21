#pragma once

#include <irrlicht.h>

namespace skyvane {

/// Shows a colour: in its left half as it is, in its right half over light and dark, so that its alpha can be judged.
class ColorSwatch : public irr::gui::IGUIElement {
public:
    /// The colour is looked at in each frame and outlives the element.
    ColorSwatch(irr::gui::IGUIEnvironment* environment, const irr::video::SColor& color, irr::gui::IGUIElement* parent,
                const irr::core::rect<irr::s32>& rectangle);
    void draw() override;

private:
    const irr::video::SColor& color_;
};

} // namespace skyvane
