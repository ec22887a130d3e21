#pragma once

#include "gui/elements/AggregatableGUIElement.h"
#include "gui/font/CachedText.h"

#include <string>

namespace skyvane {

class FlexibleFont;

/// A text as a child of a layout. A text that is too long for its place is drawn smaller, never cut. Nothing is built
/// or allocated in a frame.
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

    FlexibleFont* font_;
    Look look_;
    CachedText text_;
};

} // namespace skyvane
