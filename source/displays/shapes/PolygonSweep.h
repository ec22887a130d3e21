#pragma once

#include "displays/shapes/Strokes.h"

namespace skyvane {

/// Cuts a polygon of any size and shape into trapezoids, in steps that take as little time as the caller has.
///
///     PolygonSweep sweep(outline);
///     while (!sweep.advance(20000)) ...          // perhaps a frame later
///     for (const auto& part : sweep.getTrapezoids()) ...
///
/// A line goes over the polygon from low to high y; between two vertices, or crossings of edges, it meets the same
/// edges in the same order, and every second space between them is inside (even-odd rule: a polygon that crosses itself
/// is right too). A trapezoid lasts as long as the two edges at its sides stay neighbours, so that there are about as
/// many as vertices. The time of a step grows with the number of edges that the line meets; outlines for which that
/// gets out of hand, such as a scribble of 100,000 random points, fail after maximumWork.
class PolygonSweep {
public:
    /// Two sides that go from (left0, y0) to (left1, y1) and from (right0, y0) to (right1, y1).
    struct Trapezoid {
        float y0, y1;
        float left0, right0;
        float left1, right1;
    };
    static constexpr uint64_t maximumWork = 400000000;

    explicit PolygonSweep(const ShapePath& polygon);

    /// Goes on until about `work` edges have been looked at. True when all is done.
    bool advance(uint64_t work);
    bool isDone() const { return isDone_; }
    /// The polygon was too tangled: what there is of it is less than the whole.
    bool hasFailed() const { return hasFailed_; }
    /// In no particular order; complete once it is done.
    const std::vector<Trapezoid>& getTrapezoids() const { return trapezoids_; }

private:
    /// A side of the polygon, turned so that y rises.
    struct Edge {
        ShapePoint low, high;
        double slope;
        double at(double y) const { return y < high.Y ? low.X + (y - low.Y) * slope : high.X; }
    };
    struct Active {
        uint32_t edge;
        double now;  ///< x at the start of the slab
        double then; ///< x at its end
    };
    /// Two neighbours with inside between them, since the line was at y.
    struct Open {
        uint32_t left, right;
        double since;
    };

    void addEdges(const ShapePath& polygon);
    void sweepSlab();
    void updateActive();
    double cutAtCrossing(double end) const;
    void updateOpen();
    void close(const Open& open, double y);
    void finish();

    std::vector<Edge> edges_; ///< By low.Y.
    std::vector<double> levels_;
    std::vector<Active> active_;
    std::vector<Open> open_, next_;
    std::vector<uint32_t> rightOf_; ///< For each edge, the right side of the trapezoid that it is the left one of.
    std::vector<double> sinceOf_;
    std::vector<Trapezoid> trapezoids_;
    size_t level_ = 0;
    size_t nextEdge_ = 0;
    double now_ = 0.0;
    uint64_t work_ = 0;
    bool isDone_ = false;
    bool hasFailed_ = false;
};

} // namespace skyvane
