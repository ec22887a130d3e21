#pragma once

#include "core/geometry/EngineMath.h"

#include <cstddef>

namespace skyvane {

/// Whether p lies in the triangle, given in either order, by more than a tolerance: a point on an edge is outside.
bool isPointInTriangle(const irr::core::vector2d<float>& p, const irr::core::vector2d<float>& a,
                       const irr::core::vector2d<float>& b, const irr::core::vector2d<float>& c);

/// Rays through a polygon, and what they cross.
class PolygonRay {
public:
    using Point = irr::core::vector2d<float>;

    PolygonRay(const Point& from, const Point& to) : from_(from), to_(to) {}
    /// Takes the next edge. A crossing nearer than 2 to the one before counts as the same.
    void cross(const Point& a, const Point& b);
    bool isOdd() const { return crossings_ % 2 != 0; }

    /// The ray of a point out of the polygon over the edge from a to b: twice as far as a place that lies `reach` away
    /// from the edge on its right (or left) side.
    static PolygonRay over(const Point& a, const Point& b, const Point& point, float reach, bool rightIsOut);

private:
    Point from_;
    Point to_;
    Point last_;
    int crossings_ = 0;
};

/// Whether a point lies inside a simple polygon, by the vote of several rays: one that passes a vertex can be wrong,
/// most are not.
///
///     isInsidePolygon(contour, point, lowestCorner, highestCorner, 5)
///
/// T is a container of points with size() and []. min and max bound the polygon; the point lies between them. Made for
/// coordinates in metres or pixels: crossings nearer than 2 to each other are taken for one.
template <class T>
bool isInsidePolygon(const T& polygon, const PolygonRay::Point& point, const PolygonRay::Point& min,
                     const PolygonRay::Point& max, int rayCount) {
    const size_t n = polygon.size();
    if (n < 3)
        return false;
    float area = 0.0f;
    for (size_t i = 0, last = n - 1; i < n; last = i++)
        area += (polygon[last].X - point.X) * (polygon[i].Y - point.Y) -
                (polygon[i].X - point.X) * (polygon[last].Y - point.Y);
    const float reach = max.getDistanceFrom(min);
    int votes = 0;
    for (int ray = 0; ray < rayCount; ++ray) {
        const size_t end = static_cast<size_t>(ray) * n / static_cast<size_t>(rayCount);
        PolygonRay out = PolygonRay::over(polygon[(end + n - 1) % n], polygon[end], point, reach, area > 0.0f);
        for (size_t i = 0, last = n - 1; i < n; last = i++)
            out.cross(polygon[last], polygon[i]);
        if (out.isOdd() && ++votes > rayCount / 2)
            return true;
    }
    return false;
}

} // namespace skyvane
