#pragma once

namespace skyvane {

// The geoid (mean sea level) against the WGS84 ellipsoid, by the EGM84 model on a half-degree grid. Exact on the grid
// to 1/64 m, between its points to about a metre. Degrees east and north, metres. What isn't finite gives NaN.

/// Height of the geoid above the ellipsoid.
double getInterpolatedUndulation(double longitude, double latitude);
double calcMSLFromWGS84Ellipsoid(double height, double longitude, double latitude);
double calcWGS84EllipsoidFromMSL(double height, double longitude, double latitude);

} // namespace skyvane
