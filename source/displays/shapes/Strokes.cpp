#include "displays/shapes/Strokes.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace skyvane {

namespace {

constexpr double softEdge = 0.5;
constexpr double leastStep = 0.25;
/// Beyond this a mitre would stick out: the joint becomes round.
constexpr double longestMitre = 2.0;

ShapePoint normalOf(const ShapePoint& from, const ShapePoint& to) {
    const ShapePoint along = to - from;
    const double length = along.getLength();
    return length > 0.0 ? ShapePoint(along.Y / length, -along.X / length) : ShapePoint(0.0, 0.0);
}

ShapeMesh::Point toFloat(const ShapePoint& point) {
    return {static_cast<float>(point.X), static_cast<float>(point.Y)};
}

/// The direction, and the length as a multiple of a half width, in which a joint's edges lie. Zero for a sharp turn.
ShapePoint mitreOf(const ShapePoint& before, const ShapePoint& after) {
    const ShapePoint sum = before + after;
    const double square = sum.getLengthSQ();
    if (square < 4.0 / (longestMitre * longestMitre))
        return {0.0, 0.0};
    return sum * (2.0 / square);
}

/// A strip of four vertices across: clear, full, full, clear.
class Strip {
public:
    Strip(ShapeMesh& mesh, double width, uint32_t argb)
        : mesh_(mesh), inner_(std::max(0.0, width / 2.0 - softEdge)), outer_(std::max(width / 2.0, 0.5) + softEdge),
          argb_(width < 1.0 ? withAlpha(argb, std::max(0.0, width)) : argb) {}

    void start(const ShapePoint& place, const ShapePoint& across) {
        last_ = cross(place, across);
        isOpen_ = true;
    }
    void go(const ShapePoint& place, const ShapePoint& across) {
        if (!isOpen_)
            return start(place, across);
        const uint32_t next = cross(place, across);
        for (uint32_t i = 0; i < 3; ++i)
            mesh_.quad(last_ + i, last_ + i + 1, next + i + 1, next + i);
        last_ = next;
    }
    void end() { isOpen_ = false; }
    bool isOpen() const { return isOpen_; }
    void joint(const ShapePoint& place) { addDisc(mesh_, place, inner_ + softEdge, argb_); }

private:
    uint32_t cross(const ShapePoint& place, const ShapePoint& across) {
        const uint32_t clear = withAlpha(argb_, 0.0);
        const uint32_t first = mesh_.add(toFloat(place + across * outer_), clear);
        mesh_.add(toFloat(place + across * inner_), argb_);
        mesh_.add(toFloat(place - across * inner_), argb_);
        mesh_.add(toFloat(place - across * outer_), clear);
        return first;
    }

    ShapeMesh& mesh_;
    double inner_;
    double outer_;
    uint32_t argb_;
    uint32_t last_ = 0;
    bool isOpen_ = false;
};

/// The points that count, in reused memory.
const ShapePath& stepped(const ShapePath& points) {
    static thread_local ShapePath result;
    thinOut(points, leastStep, result);
    return result;
}

ShapeRect widened(const ShapeRect& view, double by) {
    return {view.UpperLeftCorner.X - by, view.UpperLeftCorner.Y - by, view.LowerRightCorner.X + by,
            view.LowerRightCorner.Y + by};
}

/// Walks along a line of `count` segments and calls segment(i, from, to), or gap() for what can't be seen.
template <class Walker>
void walkSegments(const ShapePath& points, bool isClosed, const ShapeRect& view, Walker& walker) {
    const size_t n = points.size();
    const size_t count = isClosed ? n : n - 1;
    for (size_t i = 0; i < count; ++i) {
        const ShapePoint &from = points[i], &to = points[(i + 1) % n];
        if (isBeyond(view, from, to))
            walker.skip(from, to);
        else
            walker.segment(i, from, to);
    }
}

struct WholeLine {
    Strip strip;
    const ShapePath& points;
    bool isClosed;

    ShapePoint normalAt(size_t segment) const {
        return normalOf(points[segment % points.size()], points[(segment + 1) % points.size()]);
    }
    bool hasNext(size_t segment) const { return isClosed || segment + 2 < points.size(); }
    bool hasPrevious(size_t segment) const { return isClosed || segment > 0; }

    void skip(const ShapePoint&, const ShapePoint&) { strip.end(); }
    void segment(size_t i, const ShapePoint& from, const ShapePoint& to) {
        const ShapePoint normal = normalAt(i);
        if (!strip.isOpen()) {
            const ShapePoint mitre =
                hasPrevious(i) ? mitreOf(normalAt(i + points.size() - 1), normal) : ShapePoint(0.0, 0.0);
            strip.start(from, mitre.getLengthSQ() > 0.0 ? mitre : normal);
        }
        if (!hasNext(i))
            return strip.go(to, normal);
        const ShapePoint mitre = mitreOf(normal, normalAt(i + 1));
        if (mitre.getLengthSQ() > 0.0)
            return strip.go(to, mitre);
        strip.go(to, normal);
        strip.end();
        strip.joint(to);
        strip.start(to, normalAt(i + 1));
    }
};

/// Which part of a segment, from 0 to 1, may lie in the view.
void visiblePart(const ShapeRect& view, const ShapePoint& from, const ShapePoint& to, double& first, double& last) {
    first = 0.0;
    last = 1.0;
    const auto cut = [&](double a, double b, double low, double high) {
        if (a == b)
            return;
        const double atLow = (low - a) / (b - a), atHigh = (high - a) / (b - a);
        first = std::max(first, std::min(atLow, atHigh));
        last = std::min(last, std::max(atLow, atHigh));
    };
    cut(from.X, to.X, view.UpperLeftCorner.X, view.LowerRightCorner.X);
    cut(from.Y, to.Y, view.UpperLeftCorner.Y, view.LowerRightCorner.Y);
}

struct DashedLine {
    Strip strip;
    ShapeRect view;
    double dash;
    double period;
    double walked = 0.0; ///< From the start of a dash, below one period.

    void advance(double length) {
        walked = std::fmod(walked + length, period);
        strip.end();
    }
    void skip(const ShapePoint& from, const ShapePoint& to) { advance(from.getDistanceFrom(to)); }
    void segment(size_t, const ShapePoint& from, const ShapePoint& to) {
        const double length = from.getDistanceFrom(to);
        double first, last;
        visiblePart(view, from, to, first, last);
        if (first >= last)
            return advance(length);
        const ShapePoint along = (to - from) / length, normal = normalOf(from, to);
        double at = std::floor((walked + first * length) / period) * period - walked;
        const bool continues = strip.isOpen() && at < 0.0;
        for (bool isFirst = true; at < last * length; at += period, isFirst = false) {
            if (at + dash <= 0.0)
                continue;
            if (!(isFirst && continues))
                strip.start(from + along * std::max(0.0, at), normal);
            strip.go(from + along * std::min(length, at + dash), normal);
            if (at + dash <= length)
                strip.end();
        }
        walked = std::fmod(walked + length, period);
    }
};

} // namespace

void thinOut(const ShapePath& points, double distance, ShapePath& result) {
    result.clear();
    const double square = distance * distance;
    for (const ShapePoint& point : points)
        if (result.empty() || !(point.getDistanceFromSQ(result.back()) < square))
            result.push_back(point);
    if (result.size() > 1 && points.back() != result.back())
        result.back() = points.back();
}

bool isBeyond(const ShapeRect& view, const ShapePoint& a, const ShapePoint& b) {
    const ShapePoint &low = view.UpperLeftCorner, &high = view.LowerRightCorner;
    return (a.X < low.X && b.X < low.X) || (a.X > high.X && b.X > high.X) || (a.Y < low.Y && b.Y < low.Y) ||
           (a.Y > high.Y && b.Y > high.Y);
}

void addStroke(ShapeMesh& mesh, const ShapePath& points, const Stroke& stroke, const ShapeRect& view) {
    const ShapePath& path = stepped(points);
    if (path.size() < 2 || !(stroke.width > 0.0f))
        return;
    const ShapeRect seen = widened(view, longestMitre * stroke.width + 1.0);
    const Strip strip(mesh, stroke.width, stroke.argb);
    if (stroke.dash > 0.0f && stroke.gap > 0.0f) {
        DashedLine line{strip, seen, stroke.dash, static_cast<double>(stroke.dash) + stroke.gap};
        return walkSegments(path, stroke.isClosed, seen, line);
    }
    WholeLine line{strip, path, stroke.isClosed && path.size() > 2};
    walkSegments(path, line.isClosed, seen, line);
}

void addBand(ShapeMesh& mesh, const ShapePath& polygon, double width, uint32_t edge, uint32_t inner,
             const ShapeRect& view) {
    const ShapePath& path = stepped(polygon);
    const size_t n = path.size();
    if (n < 3)
        return;
    const double inwards = doubleArea(path) > 0.0 ? -width : width;
    const ShapeRect seen = widened(view, longestMitre * std::fabs(width));
    const auto corner = [&](size_t i, bool ofNext) {
        const ShapePoint before = normalOf(path[(i + n - 1) % n], path[i % n]);
        const ShapePoint after = normalOf(path[i % n], path[(i + 1) % n]);
        const ShapePoint mitre = mitreOf(before, after);
        return path[i % n] + (mitre.getLengthSQ() > 0.0 ? mitre : ofNext ? after : before) * inwards;
    };
    for (size_t i = 0; i < n; ++i) {
        if (isBeyond(seen, path[i], path[(i + 1) % n]))
            continue;
        const uint32_t first = mesh.add(toFloat(path[i]), edge);
        mesh.add(toFloat(path[(i + 1) % n]), edge);
        mesh.add(toFloat(corner(i + 1, false)), inner);
        mesh.add(toFloat(corner(i, true)), inner);
        mesh.quad(first, first + 1, first + 2, first + 3);
    }
}

void addConvex(ShapeMesh& mesh, const ShapePath& corners, uint32_t argb) {
    const size_t n = corners.size();
    if (n < 3)
        return;
    const double outwards = doubleArea(corners) > 0.0 ? softEdge : -softEdge;
    const auto first = static_cast<uint32_t>(mesh.vertices.size());
    for (size_t i = 0; i < n; ++i) {
        const ShapePoint before = normalOf(corners[(i + n - 1) % n], corners[i]);
        const ShapePoint after = normalOf(corners[i], corners[(i + 1) % n]);
        const ShapePoint mitre = mitreOf(before, after);
        const ShapePoint out = (mitre.getLengthSQ() > 0.0 ? mitre : after) * outwards;
        mesh.add(toFloat(corners[i] - out), argb);
        mesh.add(toFloat(corners[i] + out), withAlpha(argb, 0.0));
    }
    const auto index = [&](size_t i) { return first + 2 * static_cast<uint32_t>(i % n); };
    for (size_t i = 1; i + 1 < n; ++i)
        mesh.triangle(index(0), index(i), index(i + 1));
    for (size_t i = 0; i < n; ++i)
        mesh.quad(index(i), index(i + 1), index(i + 1) + 1, index(i) + 1);
}

void addDisc(ShapeMesh& mesh, const ShapePoint& centre, double radius, uint32_t argb) {
    const auto steps = static_cast<size_t>(std::clamp(4.0 * std::sqrt(std::max(0.0, radius)) + 4.0, 8.0, 64.0));
    static thread_local ShapePath outline;
    outline.clear();
    for (size_t i = 0; i < steps; ++i) {
        const double angle = 2.0 * 3.14159265358979323846 * static_cast<double>(i) / static_cast<double>(steps);
        outline.push_back(centre + ShapePoint(std::cos(angle), std::sin(angle)) * radius);
    }
    addConvex(mesh, outline, argb);
}

double doubleArea(const ShapePath& polygon) {
    double sum = 0.0;
    const ShapePoint origin = polygon.empty() ? ShapePoint() : polygon.front();
    for (size_t i = 0; i < polygon.size(); ++i) {
        const ShapePoint a = polygon[i] - origin, b = polygon[(i + 1) % polygon.size()] - origin;
        sum += a.X * b.Y - b.X * a.Y;
    }
    return sum;
}

double distanceToPath(const ShapePath& points, bool isClosed, const ShapePoint& place) {
    double nearest = std::numeric_limits<double>::infinity();
    const size_t n = points.size();
    if (n == 1)
        return points[0].getDistanceFrom(place);
    for (size_t i = 0; i + (isClosed ? 0 : 1) < n; ++i) {
        const ShapePoint from = points[i], along = points[(i + 1) % n] - from;
        const double square = along.getLengthSQ();
        const double t = square > 0.0 ? std::clamp((place - from).dotProduct(along) / square, 0.0, 1.0) : 0.0;
        nearest = std::min(nearest, (from + along * t).getDistanceFrom(place));
    }
    return nearest;
}

bool isInside(const ShapePath& polygon, const ShapePoint& place) {
    bool inside = false;
    for (size_t i = 0, last = polygon.size() - 1; i < polygon.size(); last = i++) {
        const ShapePoint &a = polygon[last], &b = polygon[i];
        if ((a.Y > place.Y) != (b.Y > place.Y) && place.X < a.X + (place.Y - a.Y) / (b.Y - a.Y) * (b.X - a.X))
            inside = !inside;
    }
    return inside;
}

} // namespace skyvane
