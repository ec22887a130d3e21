#pragma once

#include "chart/geodesy/ChartPosition.h"
#include "core/geometry/EngineMath.h"

namespace skyvane {

/// Distance in metres along the great circle on the mean sphere.
///
/// Within 1 cm of the exact sphere above about 6.4 km. Below, where the arc cosine would lose precision, it is taken in
/// the local frame of the first position, in error by at most tan(latitude) * distance / radius of the distance: 0.1 %
/// at 45 and 0.6 % at 80 degrees. Beyond 89 degrees of latitude short distances mean little.
double calcDistance2(const ChartPosition& from, const ChartPosition& to);

/// True bearing in degrees from the first to the second position, 0 up to but not including 360. The switch to the
/// local frame is that of calcDistance2. Within 1e-6 degrees of the exact sphere above it, below within the angle whose
/// tangent is tan(latitude) * distance / radius. Of equal positions and from a pole no bearing means anything.
double calcBearing2(const ChartPosition& from, const ChartPosition& to);

/// Distance and bearing of two vectors from the centre of the earth, of any length.
double calcDistance(irr::core::vector3d<double> from, irr::core::vector3d<double> to);
double calcDistance(const irr::core::vector3d<float>& from, const irr::core::vector3d<float>& to);
double calcBearing(irr::core::vector3d<double> from, irr::core::vector3d<double> to);
double calcBearing(const irr::core::vector3d<float>& from, const irr::core::vector3d<float>& to);

/// The unit vector from the centre of the earth: y is the polar axis, x points to longitude 0, z to 90 degrees east.
irr::core::vector3d<double> calcVectorFromChartPositionf64(double longitude, double latitude);
irr::core::vector3d<float> calcVectorFromChartPosition(double longitude, double latitude);

/// The inverse, for vectors of any length: longitude 0 to 360, latitude -90 to 90; 0 where nothing defines them.
/// Through arc functions that flatten near the poles and the meridians 0 and 180: within 1e-6 degrees.
void calcChartPositionFromVector(const irr::core::vector3d<double>& vector, double& longitude, double& latitude);
void calcChartPositionFromVector(const irr::core::vector3d<float>& vector, double& longitude, double& latitude);

/// The one magnetic pole of the program; there is no other model of the magnetic field.
extern const ChartPosition magneticNorth;

/// The bearing from a position to magneticNorth plus the magnetic heading, 0 to 360.
double calcTrueHeading(const ChartPosition& position, double magneticHeading);

} // namespace skyvane
