#pragma once

#include "core/geometry/EngineMath.h"

#include <array>

namespace skyvane {

/// Where a rectangle is cut so that its corners keep their size and the rest stretches: edges from left to right and
/// from top to bottom, in pixels.
struct NineParts {
    std::array<int, 4> x;
    std::array<int, 4> y;
};

/// The smaller of two sizes, each rounded: the screen's shorter side times `cornerOfScreen`, and the rectangle's
/// shorter side times `cornerOfShort`. Never below 0.
int cornerSize(const irr::core::rect<int>& rect, int screenShortSide, float cornerOfShort, float cornerOfScreen);

/// Corners that don't fit take half of the rectangle.
NineParts nineParts(const irr::core::rect<int>& rect, int corner);

} // namespace skyvane
