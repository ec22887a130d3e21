#pragma once

#include "core/geometry/EngineMath.h"

namespace skyvane {

/// Rotation of the aircraft symbol, counter-clockwise positive: 20 degrees at 3 degrees per second, never 90; a right
/// (positive) turn banks to the right.
double calcTurnRotation(double degreesPerSecond);

/// The sideways part of an acceleration of any size, -1 to 1, positive to the right: where a ball lies. 0 for none.
double calcSideways(const irr::core::vector3d<double>& acceleration);

/// How far the ball of a turn coordinator lies from the middle, in parts of the panel's width, right positive.
double calcBallOffset(double sideways);

/// How far the marks of a slip strip stand from its middle, in parts of the strip's width, right positive.
double calcSlipOffset(double sideways);
/// In proportion to the rate up to 6 degrees per second, then ever slower: it never leaves the strip.
double calcTurnMarkOffset(double degreesPerSecond);

/// Width of a slip strip for each pixel of its height.
constexpr float slipAspect = 5.2605634f;

} // namespace skyvane
