#pragma once

#include "core/geometry/EngineMath.h"

#include <vector>

namespace skyvane {

/// Ear clipping of simple polygons, given in either order, without a closing vertex.
///
///     std::vector<Triangulate::Point> corners;
///     corners.reserve(3 * contour.size());
///     if (Triangulate::Process(contour, corners)) ...   // three points a triangle
///
/// No state, no allocation for polygons that the calling thread has triangulated the like of. Exact but for float
/// rounding; at worst cubic in the number of vertices.
class Triangulate {
public:
    using Point = irr::core::vector2d<float>;
    using Contour = std::vector<Point>;

    /// The signed area, positive counter-clockwise with y up.
    static float Area(const Contour& contour);

    /// Whether P lies in the counter-clockwise triangle ABC, edges included.
    static bool InsideTriangle(float ax, float ay, float bx, float by, float cx, float cy, float px, float py);

    /// Whether the vertices at places u, v, w of the index list V, whose first n entries count, form an ear: not flat,
    /// counter-clockwise, and no other vertex in it.
    static bool Snip(const Contour& contour, int u, int v, int w, int n, const int* V);

    /// Appends the triangles to `result`, within its reserved capacity. False for fewer than 3 vertices, a polygon
    /// that isn't simple, or a full result; what had been found until then stays in it.
    static bool Process(const Contour& contour, std::vector<Point>& result);
};

} // namespace skyvane
