#pragma once

#include "chart/geodesy/ChartPosition.h"
#include "displays/shapes/Strokes.h"

namespace skyvane {

/// Where positions lie in a picture in which degrees are linear, turned or not: fast enough for a hundred thousand
/// vertices.
///
/// A position takes the shorter way round the earth from `reference`; the vertices of one element take it from its
/// first vertex, so that no line jumps across the antimeridian.
struct MapAffine {
    ChartPosition reference;
    ShapePoint origin; ///< Where it lies, in pixels.
    ShapePoint east;   ///< Pixels a degree.
    ShapePoint north;

    ShapePoint toPixels(const ChartPosition& position) const;
    /// Of a displacement in degrees.
    ShapePoint toPixels(double degreesEast, double degreesNorth) const {
        return east * degreesEast + north * degreesNorth;
    }
    /// Replaces `path`.
    void project(const std::vector<ChartPosition>& vertices, ShapePath& path) const;
    /// Whether a rectangle of the earth, given by its corners, may be seen in the view.
    bool canSee(const ChartPosition& northWest, const ChartPosition& southEast, const ShapeRect& view) const;
    /// Pixels a metre, north or south.
    double getPixelsPerMetre() const;
    /// How the picture is turned, in degrees clockwise on the screen: where east points.
    double getTurnDegrees() const;
};

} // namespace skyvane
