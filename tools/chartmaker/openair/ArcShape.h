#pragma once

#include "chart/geodesy/ChartPosition.h"

#include <vector>

namespace skyvane {

// Round boundaries as vertices that lie on them. Between two vertices the chord leaves the arc by at most
// ArcToleranceMetres.

constexpr double ArcToleranceMetres = 10.0;
/// The greatest radius of a boundary.
constexpr double LargestArcMetres = 2000000.0;

/// The place at a distance and true bearing on the mean sphere, longitude -180 to 180.
ChartPosition placeAt(const ChartPosition& centre, double bearingDegrees, double metres);

/// A circle, without a closing vertex.
void appendCircle(const ChartPosition& centre, double radiusMetres, std::vector<ChartPosition>& vertices);

struct ArcSweep {
    double fromDegrees = 0.0; ///< True bearings from the centre.
    double toDegrees = 0.0;
    bool isClockwise = true;
};

/// An arc with both its ends; equal bearings are a full turn.
void appendArc(const ChartPosition& centre, double radiusMetres, const ArcSweep& sweep,
               std::vector<ChartPosition>& vertices);

/// An arc between two places, which are its first and last vertex; when they aren't equally far from the centre, the
/// radius changes evenly between them.
void appendArcBetween(const ChartPosition& centre, const ChartPosition& from, const ChartPosition& to, bool isClockwise,
                      std::vector<ChartPosition>& vertices);

} // namespace skyvane
