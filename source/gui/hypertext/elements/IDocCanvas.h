#pragma once

#include "core/geometry/EngineMath.h"

#include <cstdint>
#include <memory>
#include <string>

namespace skyvane {

struct Style;

/// A text that a canvas has built, ready to be drawn again and again.
class IDocText {
public:
    virtual ~IDocText() = default;
    /// Upper edge on the rectangle's; left on its left edge, or in its middle when the style centred it.
    virtual void draw(const irr::core::rect<int>& place, const irr::core::rect<int>& clip) = 0;
};

/// A picture that a canvas has loaded.
class IDocPicture {
public:
    virtual ~IDocPicture() = default;
    /// Both at least 1.
    virtual irr::core::dimension2d<irr::u32> size() const = 0;
    virtual void draw(const irr::core::rect<int>& place, const irr::core::rect<int>& clip) = 0;
};

/// What a document is laid out for and drawn on. Rectangles are pixels of the screen.
class IDocCanvas {
public:
    using Rect = irr::core::rect<int>;
    virtual ~IDocCanvas() = default;

    // For the layout
    virtual int getLinkPadding() const = 0;
    virtual uint32_t getLinkColor() const = 0;
    /// What lies behind the page.
    virtual uint32_t getPageColor() const = 0;
    virtual std::unique_ptr<IDocText> makeText(const std::wstring& text, const Style& style) = 0;
    /// Null for a picture that isn't there or can't be shown.
    virtual std::unique_ptr<IDocPicture> loadPicture(const std::string& name) = 0;

    // For the drawing
    virtual void drawFilledRect(const Rect& rect, uint32_t color, const Rect& clip) = 0;
    virtual void drawFrame(const Rect& rect, uint32_t color, const Rect& clip) = 0;
    virtual void drawButton(const Rect& rect, bool pressed, const Rect& clip) = 0;

    /// A link was clicked. Fires inside the drawing: the page stays until that is done.
    virtual void gotoOnNextRender(const std::string& target) = 0;
};

} // namespace skyvane
