#pragma once

#include "core/geometry/EngineMath.h"

namespace skyvane {

/// The largest rectangle of that width-to-height ratio inside `rect`, centred. In single precision; the half length is
/// truncated, the centre is the integer half of the sum of the edges. `rect` itself for a ratio that isn't positive.
irr::core::rect<int> makeXic(const irr::core::rect<int>& rect, float aspect);

/// Shrinks the rectangle in place to a centred square and returns it.
irr::core::rect<int>& makeQuadratic(irr::core::rect<int>& rect);

} // namespace skyvane
