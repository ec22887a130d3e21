#pragma once

#include "core/geometry/EngineMath.h"

#include <vector>

namespace skyvane {

/// Answers how much of a rectangle others cover, without looking at those that lie elsewhere.
///
/// A rectangle counts as it was when it came in; its address only tells it from others. Quarters are loose: each
/// reaches half its size beyond its edges, so that a small rectangle on the line between two quarters sinks into one of
/// them and doesn't stay above, where every question would meet it. The root holds what lies outside of its bounds as
/// well, so everything counts. Memory is kept over clear(): a tree that is filled again and again allocates nothing in
/// the end. One thread at a time.
class RectangleQuadTree {
public:
    explicit RectangleQuadTree(const irr::core::rect<double>& bounds);

    void insert(const irr::core::rect<double>* rectangle);
    /// The sum of the overlaps of the query with all rectangles but one.
    double calcOverlappingArea(const irr::core::rect<double>* self, const irr::core::rect<double>& query) const;
    void clear();

private:
    static constexpr int None = -1;
    struct Item {
        irr::core::rect<double> place; ///< a copy: questions read it often
        const irr::core::rect<double>* rectangle;
        int next;
    };
    struct Node {
        irr::core::rect<double> bounds;
        irr::core::rect<double> reach; ///< the loose bounds
        int items = None;              ///< the first of the list
        int children = None;           ///< four in a row
        int depth = 0;
    };

    int quarterFor(const Node& node, const irr::core::rect<double>& rectangle) const;
    void split(int node);
    void addTo(int node, const irr::core::rect<double>* rectangle);
    void sumOverlaps(int node, const irr::core::rect<double>* self, const irr::core::rect<double>& query,
                     double& area) const;

    std::vector<Node> nodes_;
    std::vector<Item> items_;
};

/// The overlap of two rectangles that the label solver counts, 0 when they don't meet. It is what sticks out of the one
/// beyond the near edge of the other, in both directions: for a rectangle within another more than their common area.
double overlapOf(const irr::core::rect<double>& a, const irr::core::rect<double>& b);

} // namespace skyvane
