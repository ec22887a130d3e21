#pragma once

#include "displays/shapes/ShapeMesh.h"

namespace skyvane {

/// Lines, bands and simple areas as triangles whose edges are soft over one pixel. Points are pixels in double
/// precision, since what lies far outside of a view is drawn through it.

using ShapePoint = irr::core::vector2d<double>;
using ShapePath = std::vector<ShapePoint>;
using ShapeRect = irr::core::rect<double>;

/// How a line looks. Widths below a pixel show as a pixel of less alpha.
struct Stroke {
    float width = 1.0f;
    uint32_t argb = 0xffffffff;
    bool isClosed = false; ///< From the last point back to the first.
    float dash = 0.0f;     ///< Pixels; 0 draws all of the line.
    float gap = 0.0f;
};

/// Appends the pieces of the line that can be seen in `view`. Joints are mitred, sharp ones round. Points closer than
/// a quarter of a pixel to the one before don't count.
void addStroke(ShapeMesh& mesh, const ShapePath& points, const Stroke& stroke, const ShapeRect& view);

/// Appends a band along the inner side of a closed polygon, given in either order: `edge` on the outline, fading to
/// `inner` a width further in. A negative width lies outside of it.
void addBand(ShapeMesh& mesh, const ShapePath& polygon, double width, uint32_t edge, uint32_t inner,
             const ShapeRect& view);

/// A filled convex polygon, and a disc.
void addConvex(ShapeMesh& mesh, const ShapePath& corners, uint32_t argb);
void addDisc(ShapeMesh& mesh, const ShapePoint& centre, double radius, uint32_t argb);

/// Leaves out the points that lie closer than `distance` to the last one kept; the last one stays.
void thinOut(const ShapePath& points, double distance, ShapePath& result);

/// Twice the signed area.
double doubleArea(const ShapePath& polygon);

/// Whether all of a segment lies beyond one side of the rectangle.
bool isBeyond(const ShapeRect& view, const ShapePoint& a, const ShapePoint& b);

/// How far a point lies from a line, from its nearest piece. Infinite without points.
double distanceToPath(const ShapePath& points, bool isClosed, const ShapePoint& place);
/// By the even-odd rule.
bool isInside(const ShapePath& polygon, const ShapePoint& place);

} // namespace skyvane
