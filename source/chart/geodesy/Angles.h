#pragma once

#include "core/geometry/EngineMath.h"

namespace skyvane {

// Normalisation of angles in degrees. What isn't finite gives NaN.

/// 0 up to but not including 360.
double Angle0to360(double degrees);
/// As Angle0to360, except that exactly 360 stays 360: an east edge there keeps its place.
double Angle360(double degrees);
/// -180 to 180, both included: each end keeps its sign.
double Angle180(double degrees);
/// Each component on its own.
irr::core::vector3d<double> Angle180(const irr::core::vector3d<double>& degrees);
/// A latitude that went over a pole comes down on the other side: 100 gives 80, 350 gives -10.
double Latitudinize(double degrees);

} // namespace skyvane
