#include "displays/drawing/ShapeGeometry.h"

#include <algorithm>
#include <cmath>

namespace skyvane {

namespace {

constexpr double radiansPerDegree = 3.14159265358979323846 / 180.0;

/// Sine and cosine that are exact at multiples of 90 degrees.
void sineCosine(double degrees, float& sine, float& cosine) {
    const double quarters = degrees / 90.0;
    if (quarters == std::floor(quarters)) {
        static constexpr float sines[4] = {0.0f, 1.0f, 0.0f, -1.0f};
        const int quadrant = static_cast<int>(std::fmod(std::fmod(quarters, 4.0) + 4.0, 4.0));
        sine = sines[quadrant];
        cosine = sines[(quadrant + 1) % 4];
        return;
    }
    sine = static_cast<float>(std::sin(degrees * radiansPerDegree));
    cosine = static_cast<float>(std::cos(degrees * radiansPerDegree));
}

Point2f mix(Point2f a, Point2f b, float share) {
    return a + (b - a) * share;
}

/// Corner segments that keep the polygon within a quarter of a pixel of the circle.
int cornerSegments(float radius) {
    return std::min(32, std::max(1, static_cast<int>(std::ceil(1.2f * std::sqrt(radius)))));
}

} // namespace

QuadPoints rotatedQuad(Point2f position, Point2f size, float rotationDegrees, Point2f pivot) {
    float sine, cosine;
    sineCosine(std::isfinite(rotationDegrees) ? rotationDegrees : 0.0, sine, cosine);
    const float left = -pivot.X * size.X, right = left + size.X;
    const float top = -pivot.Y * size.Y, bottom = top + size.Y;
    const auto place = [&](float x, float y) {
        return Point2f(position.X + x * cosine + y * sine, position.Y - x * sine + y * cosine);
    };
    return {{place(left, top), place(right, top), place(left, bottom), place(right, bottom)}};
}

QuadPoints quadOfRect(const Rect2f& rect) {
    const Point2f a = rect.UpperLeftCorner, b = rect.LowerRightCorner;
    return {{a, Point2f(b.X, a.Y), Point2f(a.X, b.Y), b}};
}

bool clipQuad(Rect2f& rect, QuadPoints& texture, const Rect2f& clip) {
    const Rect2f whole = rect;
    const Point2f low(std::max(whole.UpperLeftCorner.X, clip.UpperLeftCorner.X),
                      std::max(whole.UpperLeftCorner.Y, clip.UpperLeftCorner.Y));
    const Point2f high(std::min(whole.LowerRightCorner.X, clip.LowerRightCorner.X),
                       std::min(whole.LowerRightCorner.Y, clip.LowerRightCorner.Y));
    if (!(low.X < high.X && low.Y < high.Y))
        return false;
    rect = Rect2f(low, high);
    const QuadPoints uncut = texture;
    const QuadPoints places = quadOfRect(rect);
    for (int i = 0; i < 4; ++i) {
        const float x = (places.corner[i].X - whole.UpperLeftCorner.X) / whole.getWidth();
        const float y = (places.corner[i].Y - whole.UpperLeftCorner.Y) / whole.getHeight();
        texture.corner[i] = mix(mix(uncut.corner[0], uncut.corner[1], x), mix(uncut.corner[2], uncut.corner[3], x), y);
    }
    return true;
}

Point2f clockDirection(float degrees) {
    float sine, cosine;
    sineCosine(static_cast<double>(degrees) + 90.0, sine, cosine);
    return Point2f(-cosine, -sine);
}

int arcSegments(float spanDegrees, float stepDegrees) {
    const double step = stepDegrees > 0.0f && std::isfinite(stepDegrees) ? stepDegrees : 1.0;
    return static_cast<int>(std::min(1440.0, std::max(1.0, std::ceil(spanDegrees / step - 1e-4))));
}

void roundedRectOutline(const Rect2f& rect, float radius, std::vector<Point2f>& points, std::vector<Point2f>& normals) {
    points.clear();
    normals.clear();
    const float limit = 0.5f * std::min(rect.getWidth(), rect.getHeight());
    const float r = std::max(0.0f, std::min(radius, limit));
    const Point2f a = rect.UpperLeftCorner, b = rect.LowerRightCorner;
    const Point2f centres[4] = {Point2f(b.X - r, a.Y + r), Point2f(b.X - r, b.Y - r), Point2f(a.X + r, b.Y - r),
                                Point2f(a.X + r, a.Y + r)};
    const int segments = cornerSegments(r);
    for (int corner = 0; corner < 4; ++corner) {
        for (int i = 0; i <= segments; ++i) {
            const Point2f normal = clockDirection(90.0f * (corner + static_cast<float>(i) / segments));
            points.push_back(centres[corner] + normal * r);
            normals.push_back(normal);
        }
    }
}

} // namespace skyvane
