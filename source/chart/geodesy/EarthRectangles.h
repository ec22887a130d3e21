#pragma once

#include "chart/geodesy/ChartPosition.h"

namespace skyvane {

// Rectangles on the earth, given by their north-west and south-east corners.

/// The corners of a square of `size` metres side around a centre, in its local frame. The west edge comes as 0 to 360,
/// the east one as -180 to 180 and the north one as 0 to 360: pass it through Latitudinize before use.
void calcRectangleAround(ChartPosition& nw, ChartPosition& se, const ChartPosition& centre, double size);

/// Area in square kilometres, going east from the west edge: 0 for edges that are a whole number of turns apart.
double calcConstrainedArea(const ChartPosition& nw, const ChartPosition& se);

} // namespace skyvane
