#include "gui/elements/BeautifulGUIText.h"

#include "gui/font/FlexibleFont.h"

#include <algorithm>

namespace skyvane {

BeautifulGUIText::BeautifulGUIText(irr::gui::IGUIEnvironment* environment, FlexibleFont* font, const std::wstring& text,
                                   const Look& look, const LayoutWish& wish, int id, void* data)
    : AggregatableGUIElement(environment, wish, id, data), font_(font), look_(look) {
    BeautifulGUIText::setText(text.c_str());
}

void BeautifulGUIText::setText(const wchar_t* text) {
    Text = text ? text : L"";
    text_.set(font_, Text.c_str(), look_.color, look_.centered);
}

void BeautifulGUIText::setColor(irr::video::SColor color) {
    look_.color = color;
    text_.set(font_, Text.c_str(), color, look_.centered);
}

/// A margin keeps the letters off the rims around.
irr::core::rect<irr::s32> BeautifulGUIText::place() const {
    irr::core::rect<irr::s32> inner = AbsoluteRect;
    const int margin = std::min(inner.getHeight() / 5, inner.getWidth() / 10);
    inner.UpperLeftCorner.X += margin;
    inner.LowerRightCorner.X -= margin;
    return inner;
}

void BeautifulGUIText::draw() {
    if (!isVisible())
        return;
    const irr::core::rect<irr::s32> area = place();
    const auto& size = text_.getDimension();
    if (size.Width > 0 && size.Height > 0) {
        const float fitting = std::min(static_cast<float>(area.getWidth()) / static_cast<float>(size.Width + 1),
                                       static_cast<float>(area.getHeight()) / static_cast<float>(size.Height + 1));
        const irr::core::vector2d<float>& usual = font_->getDefaultScale();
        const float scale = std::min({fitting, usual.X, usual.Y});
        if (scale > 0.0f)
            text_.draw(area, {scale, scale}, look_.centered, true, &AbsoluteClippingRect);
    }
    IGUIElement::draw();
}

} // namespace skyvane
