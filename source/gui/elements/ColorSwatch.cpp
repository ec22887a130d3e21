#include "gui/elements/ColorSwatch.h"

namespace skyvane {

using irr::video::SColor;

namespace {

constexpr int rimPixels = 3;

} // namespace

ColorSwatch::ColorSwatch(irr::gui::IGUIEnvironment* environment, const SColor& color, irr::gui::IGUIElement* parent,
                         const irr::core::rect<irr::s32>& rectangle)
    : IGUIElement(irr::gui::EGUIET_ELEMENT, environment, parent, -1, rectangle), color_(color) {}

void ColorSwatch::draw() {
    if (!isVisible())
        return;
    irr::video::IVideoDriver* driver = Environment->getVideoDriver();
    irr::core::rect<irr::s32> inside = AbsoluteRect;
    inside.UpperLeftCorner += irr::core::position2di(rimPixels, rimPixels);
    inside.LowerRightCorner -= irr::core::position2di(rimPixels, rimPixels);
    const auto fill = [&](SColor color, int fromPercent, int toPercent) {
        irr::core::rect<irr::s32> part = inside;
        part.UpperLeftCorner.X = inside.UpperLeftCorner.X + inside.getWidth() * fromPercent / 100;
        part.LowerRightCorner.X = inside.UpperLeftCorner.X + inside.getWidth() * toPercent / 100;
        driver->draw2DRectangle(color, part, &AbsoluteClippingRect);
    };
    SColor opaque = color_;
    opaque.setAlpha(255);
    fill(opaque, 0, 50);
    fill(SColor(0xffffffff), 50, 75);
    fill(SColor(0xff000000), 75, 100);
    fill(color_, 50, 100);
    Environment->getSkin()->draw3DSunkenPane(this, SColor(0), false, false, AbsoluteRect, &AbsoluteClippingRect);
    IGUIElement::draw();
}

} // namespace skyvane
