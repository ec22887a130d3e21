#include "displays/labels/OverlapPreventer.h"

#include <cmath>

namespace skyvane {

namespace {

using Pair = irr::core::vector2d<double>;
using Rect = irr::core::rect<double>;

bool isInside(const Rect& rect, const Pair& point) {
    return point.X > rect.UpperLeftCorner.X && point.X < rect.LowerRightCorner.X && point.Y > rect.UpperLeftCorner.Y &&
           point.Y < rect.LowerRightCorner.Y;
}

/// The smallest move along x or y that takes a corner out of a rectangle, to the side on which its own one lies.
Pair pushOut(const Rect& a, const Pair& corner, const Pair& centreOfB) {
    const Pair centreOfA = a.getCenter();
    const double x = centreOfB.X >= centreOfA.X ? a.LowerRightCorner.X - corner.X : a.UpperLeftCorner.X - corner.X;
    const double y = centreOfB.Y >= centreOfA.Y ? a.LowerRightCorner.Y - corner.Y : a.UpperLeftCorner.Y - corner.Y;
    return std::fabs(x) <= std::fabs(y) ? Pair(x, 0.0) : Pair(0.0, y);
}

} // namespace

void OverlapPreventer::overlapSolver(int rounds) {
    bool overlaps = true;
    for (int round = 0; overlaps && round < rounds; ++round) {
        overlaps = false;
        for (OverlapRecord& a : records_)
            for (OverlapRecord& b : records_)
                if (&a != &b)
                    overlaps = pushApart(a, b) || overlaps;
    }
}

bool OverlapPreventer::pushApart(OverlapRecord& a, OverlapRecord& b) {
    const Rect& r = b.rectangle;
    const Pair corners[] = {r.UpperLeftCorner,
                            {r.LowerRightCorner.X, r.UpperLeftCorner.Y},
                            {r.UpperLeftCorner.X, r.LowerRightCorner.Y},
                            r.LowerRightCorner};
    Pair total;
    int count = 0;
    for (const Pair& corner : corners)
        if (isInside(a.rectangle, corner)) {
            total += pushOut(a.rectangle, corner, r.getCenter());
            ++count;
        }
    if (count == 0)
        return false;
    total /= 2.0 * count;
    a.rectangle -= total / a.weight;
    b.rectangle += total / b.weight;
    return true;
}

} // namespace skyvane
