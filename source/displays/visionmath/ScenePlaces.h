#pragma once

#include "chart/geodesy/ChartPosition.h"

namespace skyvane {

/// The height at which the aircraft is shown, in metres: its altitude, but on and a little below the ground 2 m above
/// that, so that it doesn't sink into the runway. Where it is 20 m or more too low the altitude stays: that is no
/// runway then. The ground is infinite where nobody knows it.
double calcShownHeight(double altitudeMetres, double groundMetres);

/// The corners of the area in which chart elements are looked for.
struct ElementBox {
    ChartPosition nw, se;
};

/// Twice the sight wide and high. Beyond 89.9 degrees the width in degrees stops growing; no box reaches over a pole,
/// and none is wider than the earth. The west edge is 0 to 360, the east edge may be beyond 360.
ElementBox calcElementBox(const ChartPosition& centre, double sightMetres);

} // namespace skyvane
