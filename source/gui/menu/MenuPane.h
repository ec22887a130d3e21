#pragma once

#include <irrlicht.h>

namespace skyvane {

/// The ground that buttons of the menu stand on: opaque, and not for the finger. Its parent holds it.
class MenuPane : public irr::gui::IGUIElement {
public:
    enum class Look {
        Band,  ///< A plain stripe.
        Window ///< As the skin draws windows.
    };

    MenuPane(irr::gui::IGUIEnvironment* environment, Look look, const irr::core::rect<irr::s32>& rect)
        : IGUIElement(irr::gui::EGUIET_ELEMENT, environment, environment->getRootGUIElement(), -1, rect), look_(look) {}

    void draw() override {
        if (!isVisible())
            return;
        irr::gui::IGUISkin* skin = Environment->getSkin();
        if (look_ == Look::Band)
            skin->draw2DRectangle(this, irr::video::SColor(0xff0b0f14), AbsoluteRect, &AbsoluteClippingRect);
        else
            skin->draw3DMenuPane(this, AbsoluteRect, &AbsoluteClippingRect);
        IGUIElement::draw();
    }

private:
    Look look_;
};

} // namespace skyvane
