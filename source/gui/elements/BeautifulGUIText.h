#pragma once

#include "gui/elements/AggregatableGUIElement.h"
#include "gui/font/CachedText.h"

#include <string>

namespace skyvane {

class FlexibleFont;

/// A text as a child of a layout. A text that is too long for its place is drawn smaller as far as it can be read; a
/// line that is longer still is cut, with "..." behind it. Nothing is built or allocated in a frame in which nothing
/// changed.
class BeautifulGUIText : public AggregatableGUIElement {
public:
    struct Look {
        irr::video::SColor color{0xfff2f5f9};
        bool centered = false; ///< across; it is always centred from top to bottom
    };

    /// The font outlives the element.
    BeautifulGUIText(irr::gui::IGUIEnvironment* environment, FlexibleFont* font, const std::wstring& text,
                     const Look& look, const LayoutWish& wish = LayoutWish(), int id = -1, void* data = nullptr);

    void setText(const wchar_t* text) override;
    void setColor(irr::video::SColor color);

    void draw() override;

private:
    irr::core::rect<irr::s32> place() const;
    void showWhatFits(int room);

    FlexibleFont* font_;
    Look look_;
    CachedText text_;
    int room_ = -1; ///< The width that the shown text was made for, in pixels at the font's default scale.
};

} // namespace skyvane
