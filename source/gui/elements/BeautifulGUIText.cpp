#include "gui/elements/BeautifulGUIText.h"

#include "gui/font/FlexibleFont.h"
#include "gui/layoutmath/ShortText.h"

#include <algorithm>

namespace skyvane {
namespace {

/// Of the usual size: smaller letters can't be read at arm's length.
constexpr float smallestShare = 0.75f;

} // namespace

BeautifulGUIText::BeautifulGUIText(irr::gui::IGUIEnvironment* environment, FlexibleFont* font, const std::wstring& text,
                                   const Look& look, const LayoutWish& wish, int id, void* data)
    : AggregatableGUIElement(environment, wish, id, data), font_(font), look_(look) {
    BeautifulGUIText::setText(text.c_str());
}

void BeautifulGUIText::setText(const wchar_t* text) {
    Text = text ? text : L"";
    text_.set(font_, Text.c_str(), look_.color, look_.centered);
    room_ = -1;
}

void BeautifulGUIText::setColor(irr::video::SColor color) {
    look_.color = color;
    text_.set(font_, text_.getText().c_str(), color, look_.centered);
}

/// A margin keeps the letters off the rims around.
irr::core::rect<irr::s32> BeautifulGUIText::place() const {
    irr::core::rect<irr::s32> inner = AbsoluteRect;
    const int margin = std::min(inner.getHeight() / 5, inner.getWidth() / 10);
    inner.UpperLeftCorner.X += margin;
    inner.LowerRightCorner.X -= margin;
    return inner;
}

void BeautifulGUIText::showWhatFits(int room) {
    if (room == room_)
        return;
    room_ = room;
    const std::wstring whole = Text.c_str();
    const bool isLine = whole.find(L'\n') == std::wstring::npos;
    const auto fits = [&](const std::wstring& text) {
        return static_cast<int>(font_->getDimension(text.c_str()).Width) <= room;
    };
    const std::wstring shown = isLine ? keepBegin(whole, fits) : whole;
    text_.set(font_, shown.c_str(), look_.color, look_.centered);
}

void BeautifulGUIText::draw() {
    if (!isVisible())
        return;
    const irr::core::rect<irr::s32> area = place();
    if (font_ && !Text.empty() && area.getWidth() > 0 && area.getHeight() > 0) {
        const irr::core::vector2d<float>& usual = font_->getDefaultScale();
        const auto fitting = [](int place, irr::u32 size) {
            return static_cast<float>(place) / static_cast<float>(size + 1);
        };
        const float whole = std::min({usual.X, usual.Y, fitting(area.getHeight(), text_.getDimension().Height)});
        showWhatFits(static_cast<int>(static_cast<float>(area.getWidth()) * usual.X / (smallestShare * whole)));
        const float scale = std::min(whole, fitting(area.getWidth(), text_.getDimension().Width));
        text_.draw(area, {scale, scale}, look_.centered, true, &AbsoluteClippingRect);
    }
    IGUIElement::draw();
}

} // namespace skyvane
