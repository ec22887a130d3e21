#pragma once

#include "core/geometry/EngineMath.h"

namespace skyvane {

/// On which sides of the bounds, whose edges belong to them, a point lies: the sum of these, 0 inside.
enum OutCode { OutLeft = 1, OutRight = 2, OutAbove = 4, OutBelow = 8 };
int ComputeOutCode(int x, int y, const irr::core::rect<int>& bounds);

/// Cuts a line to the part within the bounds, in place (Cohen and Sutherland); cut ends are rounded to whole numbers.
/// False, with the ends wherever they were left, when no part lies within.
bool clipline(int& x0, int& y0, int& x1, int& y1, const irr::core::rect<int>& bounds);

} // namespace skyvane
