#pragma once

#include "chart/geodesy/ChartPosition.h"
#include "core/geometry/EngineMath.h"

namespace skyvane {

/// Distance in metres along the great circle on the mean sphere.
///
/// Below about 6.4 km it is taken in the local frame of the first position, where the arc cosine would lose precision:
/// there it agrees with the exact sphere to within 1e-3 of the distance up to 80 degrees of latitude.
double calcDistance2(const ChartPosition& from, const ChartPosition& to);

/// True bearing in degrees from the first to the second position, 0 up to but not including 360. The switch to the
/// local frame is that of calcDistance2. Of equal positions and from a pole no bearing means anything.
double calcBearing2(const ChartPosition& from, const ChartPosition& to);

/// The same for two vectors from the centre of the earth, of any length.
double calcBearing(irr::core::vector3d<double> from, irr::core::vector3d<double> to);

/// The unit vector from the centre of the earth: y is the polar axis, x points to longitude 0, z to 90 degrees east.
irr::core::vector3d<double> calcVectorFromChartPositionf64(double longitude, double latitude);

} // namespace skyvane
