#pragma once

#include "chart/geodesy/ChartPosition.h"
#include "chart/geodesy/EarthConstants.h"
#include "core/geometry/EngineMath.h"

namespace skyvane {

/// A position in the local metric frame of an origin: x metres east, y the height, z metres north.
///
/// Equirectangular with the longitude scale of the origin's latitude, taking the shorter way round the earth; beyond
/// 89.9 degrees of latitude the scale is frozen. The half extent sizes the window that the steps work in; the result
/// doesn't depend on it beyond rounding.
irr::core::vector3d<double> ChartPosition2Vector3df64(const ChartPosition& origin, const ChartPosition& position,
                                                      double height, double halfExtent = LocalHalfExtentMetres);

} // namespace skyvane
