#pragma once

#include "core/geometry/EngineMath.h"
#include "gui/hypertext/elements/IDocCanvas.h"
#include "gui/hypertext/elements/Style.h"

#include <string>

namespace skyvane {

/// A button of the mouse in the course of frames.
enum class MouseState { Idle, JustPressed, Held, Released };

/// One drawing of a document.
struct DocPass {
    IDocCanvas& canvas;
    irr::core::rect<int> clip; ///< What of the screen the document may use.
    MouseState mouseState;
    irr::core::vector2d<int> mouse;

    bool isPressed() const { return mouseState == MouseState::JustPressed || mouseState == MouseState::Held; }
    bool isMouseInside(const irr::core::rect<int>& rect) const {
        return clip.isPointInside(mouse) && rect.isPointInside(mouse);
    }
};

/// A piece of a document: a tree that lays itself out for a width and draws itself. The parser limits how deep it
/// nests. Main thread only.
class IDocElement {
public:
    using Rect = irr::core::rect<int>;
    virtual ~IDocElement() = default;

    /// A dump of the tree with the places of the last layout, a line each.
    virtual std::string Print(int indent) const = 0;
    /// Lays out for a width in pixels; the place is relative to the parent. Empty for nothing to show.
    virtual Rect calcRelativeViewPort(IDocCanvas& canvas, const Style& style, int width) = 0;
    /// Draws at the place of the last layout within the parent, if that meets the clip.
    virtual void render(const Rect& parent, DocPass& pass) = 0;
    virtual std::string toHTML() const = 0;

protected:
    /// A layout's heights stay below this, so that sums of places fit an int.
    static constexpr int highest = 1 << 28;

    /// The place of the last layout, kept by calcRelativeViewPort() of each kind.
    Rect relative_;

    Rect placeIn(const Rect& parent) const { return relative_ + parent.UpperLeftCorner; }
    std::string dumpLine(int indent, const std::string& what) const;
};

} // namespace skyvane
