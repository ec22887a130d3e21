#pragma once

#include "core/geometry/EngineMath.h"

#include <vector>

namespace skyvane {

/// The plain geometry behind Drawer2D, in pixels, y down. A pixel covers [x, x + 1): whole numbers are pixel edges.

using Point2f = irr::core::vector2d<float>;
using Rect2f = irr::core::rect<float>;

/// Upper left, upper right, lower left, lower right: of places, texture coordinates and colours alike.
struct QuadPoints {
    Point2f corner[4];
};

/// A rectangle of that size whose `pivot` (fractions of the size) lies on `position`, turned counter-clockwise on
/// screen about it. Exact for multiples of 90 degrees.
QuadPoints rotatedQuad(Point2f position, Point2f size, float rotationDegrees, Point2f pivot);

QuadPoints quadOfRect(const Rect2f& rect);

/// Cuts an upright rectangle and its texture coordinates at `clip`. False when nothing is left.
bool clipQuad(Rect2f& rect, QuadPoints& texture, const Rect2f& clip);

/// 0 degrees up, clockwise: the unit vector (-cos(a + 90), -sin(a + 90)).
Point2f clockDirection(float degrees);

/// Number of segments, at least 1 and at most 1440, that an arc of that span is drawn with. Steps that aren't positive
/// numbers count as one degree.
int arcSegments(float spanDegrees, float stepDegrees);

/// The outline of a rounded rectangle, clockwise on screen, as points with their outward unit normals: moving every
/// point along its normal widens the shape evenly. The radius is limited to half of the shorter edge. Replaces `points`
/// and `normals`, whose memory is reused.
void roundedRectOutline(const Rect2f& rect, float radius, std::vector<Point2f>& points, std::vector<Point2f>& normals);

} // namespace skyvane
