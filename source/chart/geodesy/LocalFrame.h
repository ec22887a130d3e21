#pragma once

#include "chart/geodesy/ChartPosition.h"
#include "chart/geodesy/EarthConstants.h"
#include "core/geometry/EngineMath.h"

namespace skyvane {

/// Cosine of a latitude, frozen beyond 89.9 degrees: how much shorter than at the equator a degree of longitude is.
double longitudeScale(double latitude);

/// A position in the local metric frame of an origin: x metres east, y the height, z metres north.
///
/// Equirectangular with the longitude scale of the origin's latitude, taking the shorter way round the earth; beyond
/// 89.9 degrees of latitude the scale is frozen. The half extent sizes the window that the steps work in; the result
/// doesn't depend on it beyond rounding.
irr::core::vector3d<double> ChartPosition2Vector3df64(const ChartPosition& origin, const ChartPosition& position,
                                                      double height, double halfExtent = LocalHalfExtentMetres);

/// In single precision, for scenes.
irr::core::vector3d<float> ChartPosition2Vector3df(const ChartPosition& origin, const ChartPosition& position,
                                                   double height);

/// The position at a place of the origin's local frame; the height doesn't count. Undoes ChartPosition2Vector3df64
/// to within 1e-11 degrees, whole turns aside: the longitude isn't wrapped.
ChartPosition Vector3df642ChartPosition(const ChartPosition& origin, const irr::core::vector3d<double>& place);
ChartPosition Vector3df2ChartPosition(const ChartPosition& origin, const irr::core::vector3d<float>& place);

} // namespace skyvane
