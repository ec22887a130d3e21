#pragma once

#include "core/geometry/EngineMath.h"

namespace skyvane {

/// Half the width of a glyph's edge, in units of the distance field, that is about one pixel of the screen at this
/// scale: factor / (16 * root mean square of the scale). Limited to the fatness, beyond which the empty surroundings of
/// a glyph would be tinted; never 0.
float edgeSmoothing(float factor, const irr::core::vector2d<float>& scale, float fatness);

} // namespace skyvane
