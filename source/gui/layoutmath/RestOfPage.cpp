#include "gui/layoutmath/RestOfPage.h"

#include <cstdint>
#include <initializer_list>

namespace skyvane {
namespace {

using Rect = irr::core::rect<int>;

int64_t areaOf(const Rect& rect) {
    return rect.isValid() ? int64_t{rect.getWidth()} * rect.getHeight() : 0;
}

} // namespace

Rect restOfPage(const Rect& page, const Rect& cover, int gap) {
    Rect common = cover;
    common.clipAgainst(page);
    if (areaOf(common) <= 0)
        return page;
    Rect left = page, right = page, above = page, below = page;
    left.LowerRightCorner.X = cover.UpperLeftCorner.X - gap;
    right.UpperLeftCorner.X = cover.LowerRightCorner.X + gap;
    above.LowerRightCorner.Y = cover.UpperLeftCorner.Y - gap;
    below.UpperLeftCorner.Y = cover.LowerRightCorner.Y + gap;
    Rect largest = left;
    for (const Rect& rest : {right, above, below})
        if (areaOf(rest) > areaOf(largest))
            largest = rest;
    return areaOf(largest) > 0 ? largest : page;
}

} // namespace skyvane
