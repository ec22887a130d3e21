#include "core/geometry/LineClipping.h"

#include <cmath>

namespace skyvane {
namespace {

/// The other coordinate of the line where its first one is `at`.
int crossAt(int at, int a0, int b0, int a1, int b1) {
    const double share = (static_cast<double>(at) - a0) / (static_cast<double>(a1) - a0);
    return static_cast<int>(std::lround(b0 + share * (static_cast<double>(b1) - b0)));
}

/// Moves the point onto the edge that its code names first; the rest of its code is a matter of the next round.
void cut(int code, int& x, int& y, int otherX, int otherY, const irr::core::rect<int>& bounds) {
    if (code & (OutAbove | OutBelow)) {
        const int edge = code & OutAbove ? bounds.UpperLeftCorner.Y : bounds.LowerRightCorner.Y;
        x = crossAt(edge, y, x, otherY, otherX);
        y = edge;
    } else {
        const int edge = code & OutLeft ? bounds.UpperLeftCorner.X : bounds.LowerRightCorner.X;
        y = crossAt(edge, x, y, otherX, otherY);
        x = edge;
    }
}

} // namespace

int ComputeOutCode(int x, int y, const irr::core::rect<int>& bounds) {
    int code = 0;
    if (x < bounds.UpperLeftCorner.X)
        code |= OutLeft;
    else if (x > bounds.LowerRightCorner.X)
        code |= OutRight;
    if (y < bounds.UpperLeftCorner.Y)
        code |= OutAbove;
    else if (y > bounds.LowerRightCorner.Y)
        code |= OutBelow;
    return code;
}

bool clipline(int& x0, int& y0, int& x1, int& y1, const irr::core::rect<int>& bounds) {
    // Each cut brings an end nearer to the other, between the same two edges from then on: it can't go on for ever.
    for (;;) {
        const int code0 = ComputeOutCode(x0, y0, bounds);
        const int code1 = ComputeOutCode(x1, y1, bounds);
        if (!(code0 | code1))
            return true;
        if (code0 & code1)
            return false;
        if (code0)
            cut(code0, x0, y0, x1, y1, bounds);
        else
            cut(code1, x1, y1, x0, y0, bounds);
    }
}

} // namespace skyvane
