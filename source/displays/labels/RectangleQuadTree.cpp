#include "displays/labels/RectangleQuadTree.h"

namespace skyvane {

using Rect = irr::core::rect<double>;

namespace {

/// Rectangles in one place would be split for ever.
constexpr int DeepestNode = 16;

double overlapWidth(double aStart, double aEnd, double bStart, double bEnd) {
    return bStart > aStart ? aEnd - bStart : bEnd - aStart;
}

bool contains(const Rect& outer, const Rect& inner) {
    return inner.UpperLeftCorner.X >= outer.UpperLeftCorner.X && inner.UpperLeftCorner.Y >= outer.UpperLeftCorner.Y &&
           inner.LowerRightCorner.X <= outer.LowerRightCorner.X && inner.LowerRightCorner.Y <= outer.LowerRightCorner.Y;
}

bool meet(const Rect& a, const Rect& b) {
    return a.UpperLeftCorner.X <= b.LowerRightCorner.X && a.LowerRightCorner.X >= b.UpperLeftCorner.X &&
           a.UpperLeftCorner.Y <= b.LowerRightCorner.Y && a.LowerRightCorner.Y >= b.UpperLeftCorner.Y;
}

Rect loosened(const Rect& bounds) {
    const irr::core::vector2d<double> half(bounds.getWidth() / 2.0, bounds.getHeight() / 2.0);
    return {bounds.UpperLeftCorner - half, bounds.LowerRightCorner + half};
}

/// 0 upper left, 1 upper right, 2 lower left, 3 lower right.
Rect quarter(const Rect& bounds, int index) {
    const double x = (bounds.UpperLeftCorner.X + bounds.LowerRightCorner.X) / 2.0;
    const double y = (bounds.UpperLeftCorner.Y + bounds.LowerRightCorner.Y) / 2.0;
    Rect part = bounds;
    (index % 2 ? part.UpperLeftCorner.X : part.LowerRightCorner.X) = x;
    (index / 2 ? part.UpperLeftCorner.Y : part.LowerRightCorner.Y) = y;
    return part;
}

} // namespace

double overlapOf(const Rect& a, const Rect& b) {
    const double x = overlapWidth(a.UpperLeftCorner.X, a.LowerRightCorner.X, b.UpperLeftCorner.X, b.LowerRightCorner.X);
    const double y = overlapWidth(a.UpperLeftCorner.Y, a.LowerRightCorner.Y, b.UpperLeftCorner.Y, b.LowerRightCorner.Y);
    return x > 0.0 && y > 0.0 ? x * y : 0.0;
}

RectangleQuadTree::RectangleQuadTree(const Rect& bounds) {
    nodes_.push_back({bounds, loosened(bounds), None, None, 0});
}

void RectangleQuadTree::clear() {
    nodes_.resize(1);
    nodes_.front().items = None;
    nodes_.front().children = None;
    items_.clear();
}

void RectangleQuadTree::insert(const Rect* rectangle) {
    int node = 0;
    for (;;) {
        if (nodes_[node].children == None) {
            if (nodes_[node].items == None || nodes_[node].depth == DeepestNode)
                break;
            split(node);
        }
        const int child = quarterFor(nodes_[node], *rectangle);
        if (child == None)
            break;
        node = child;
    }
    addTo(node, rectangle);
}

int RectangleQuadTree::quarterFor(const Node& node, const Rect& rectangle) const {
    const irr::core::vector2d<double> centre = rectangle.getCenter();
    const irr::core::vector2d<double> middle = node.bounds.getCenter();
    const int child = node.children + (centre.X < middle.X ? 0 : 1) + (centre.Y < middle.Y ? 0 : 2);
    return contains(nodes_[child].reach, rectangle) ? child : None;
}

/// Makes the quarters and hands the one rectangle that the node holds on to them.
void RectangleQuadTree::split(int node) {
    const Rect bounds = nodes_[node].bounds;
    const int depth = nodes_[node].depth + 1;
    const int children = static_cast<int>(nodes_.size());
    for (int i = 0; i < 4; ++i) {
        const Rect part = quarter(bounds, i);
        nodes_.push_back({part, loosened(part), None, None, depth});
    }
    nodes_[node].children = children;
    const int item = nodes_[node].items;
    const int child = quarterFor(nodes_[node], items_[item].place);
    if (child == None)
        return;
    nodes_[child].items = item;
    nodes_[node].items = None;
}

void RectangleQuadTree::addTo(int node, const Rect* rectangle) {
    items_.push_back({*rectangle, rectangle, nodes_[node].items});
    nodes_[node].items = static_cast<int>(items_.size()) - 1;
}

double RectangleQuadTree::calcOverlappingArea(const Rect* self, const Rect& query) const {
    double area = 0.0;
    sumOverlaps(0, self, query, area);
    return area;
}

void RectangleQuadTree::sumOverlaps(int node, const Rect* self, const Rect& query, double& area) const {
    const Node& here = nodes_[node];
    for (int item = here.items; item != None; item = items_[item].next)
        if (items_[item].rectangle != self)
            area += overlapOf(items_[item].place, query);
    if (here.children == None)
        return;
    for (int child = here.children; child < here.children + 4; ++child)
        if (meet(nodes_[child].reach, query))
            sumOverlaps(child, self, query, area);
}

} // namespace skyvane
