#include "chart/geodesy/PolygonTests.h"

#include <cmath>

namespace skyvane {
namespace {

using Point = PolygonRay::Point;

constexpr float SideTolerance = 0.0001f;
constexpr float SameCrossing = 2.0f;

float crossProduct(const Point& a, const Point& b) {
    return a.X * b.Y - a.Y * b.X;
}

/// Whether p and the third vertex lie on the same side of the edge from a to b.
bool sameSide(const Point& p, const Point& third, const Point& a, const Point& b) {
    const float ofPoint = crossProduct(b - a, p - a);
    const float ofThird = crossProduct(b - a, third - a);
    return (ofPoint >= SideTolerance && ofThird >= SideTolerance) ||
           (ofPoint <= -SideTolerance && ofThird <= -SideTolerance);
}

} // namespace

bool isPointInTriangle(const Point& p, const Point& a, const Point& b, const Point& c) {
    return sameSide(p, c, a, b) && sameSide(p, a, b, c) && sameSide(p, b, c, a);
}

void PolygonRay::cross(const Point& a, const Point& b) {
    const Point ray = to_ - from_, edge = b - a, between = a - from_;
    const float turn = crossProduct(ray, edge);
    if (turn == 0.0f)
        return;
    const float alongRay = crossProduct(between, edge) / turn;
    const float alongEdge = crossProduct(between, ray) / turn;
    if (!(alongRay >= 0.0f && alongRay <= 1.0f && alongEdge >= 0.0f && alongEdge <= 1.0f))
        return;
    const Point crossing = a + edge * alongEdge;
    if (crossings_ > 0 && crossing.getDistanceFrom(last_) < SameCrossing)
        return;
    last_ = crossing;
    ++crossings_;
}

PolygonRay PolygonRay::over(const Point& a, const Point& b, const Point& point, float reach, bool rightIsOut) {
    Point normal(b.Y - a.Y, a.X - b.X);
    const float length = normal.getLength();
    if (length > 0.0f)
        normal *= (rightIsOut ? reach : -reach) / length;
    const Point far = a + normal;
    return PolygonRay(point, far + (far - point));
}

} // namespace skyvane
