#pragma once

#include "chart/geodesy/ChartPosition.h"

#include <list>
#include <vector>

namespace skyvane {

// Measures of points, lines and polygons on the earth, in the local frame of their first point where it says so: meant
// for what spans some ten kilometres; the error grows as that frame's.

/// The corners that bound the points, and the area in square metres, in the local frame of the first point. True for
/// two points and more; one point gives itself and area 0, none changes nothing.
bool calculateBoundingBox(ChartPosition& nw, ChartPosition& se, double& area, const std::vector<ChartPosition>& points);

/// Sum of calcDistance2 along the line.
double calcPolyLineLength(const std::list<ChartPosition>& line);

/// Area in square metres of the polygon, which closes by itself, in the local frame of its first point.
double calcPolyLineArea(const std::list<ChartPosition>& polygon);

} // namespace skyvane
