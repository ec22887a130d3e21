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
/// a - b, brought by one turn at most into -180 to 180: for angles less than a turn and a half apart.
double AngleDiff(double a, double b);
/// How far two headings of 0 to 360 lie apart: 0 to 180.
double headingDiff(double a, double b);
/// How far a longitude lies east of a reference, -180 to 180.
double transformLongitude(double longitude, double reference);
/// 180 - x.
double hlp_Flip(double degrees);
/// Between two angles in radians, on the shorter way: a at t 0, b at t 1, -pi to pi. Exact at both ends and, by
/// symmetry, in the middle; in between the chord is divided, not the arc.
double lerpAngle(double a, double b, double t);

} // namespace skyvane
