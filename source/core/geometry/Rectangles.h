#pragma once

#include "core/geometry/EngineMath.h"

namespace skyvane {

/// Whether there is anything inside: false for a rectangle without width or height, or inside out. The engine's
/// getArea() can't tell for places on a page of any length, whose area overflows.
inline bool hasArea(const irr::core::rect<int>& rect) {
    return rect.LowerRightCorner.X > rect.UpperLeftCorner.X && rect.LowerRightCorner.Y > rect.UpperLeftCorner.Y;
}

/// The largest rectangle of that width-to-height ratio inside `rect`, centred. In single precision; the half length is
/// truncated, the centre is the integer half of the sum of the edges. `rect` itself for a ratio that isn't positive.
irr::core::rect<int> makeXic(const irr::core::rect<int>& rect, float aspect);

/// Shrinks the rectangle in place to a centred square and returns it.
irr::core::rect<int>& makeQuadratic(irr::core::rect<int>& rect);

/// The rectangle, brought into the bounds: what is too large loses half of the excess on each side, then the rest is
/// shifted. Neither rectangle is inside out.
irr::core::rect<int> limitRect(const irr::core::rect<int>& rect, const irr::core::rect<int>& bounds);

} // namespace skyvane
