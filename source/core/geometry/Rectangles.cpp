#include "core/geometry/Rectangles.h"

#include <algorithm>

namespace skyvane {
namespace {

/// One axis of limitRect.
void limitSpan(int& low, int& high, int lowest, int highest) {
    const long long excess = (static_cast<long long>(high) - low) - (static_cast<long long>(highest) - lowest);
    if (excess >= 0) {
        // Halved away, what is left would be shifted onto the bounds.
        low = lowest;
        high = highest;
        return;
    }
    const long long shift =
        std::max(0LL, static_cast<long long>(lowest) - low) - std::max(0LL, static_cast<long long>(high) - highest);
    low = static_cast<int>(low + shift);
    high = static_cast<int>(high + shift);
}

} // namespace

irr::core::rect<int> makeXic(const irr::core::rect<int>& rect, float aspect) {
    if (!(aspect > 0.0f))
        return rect;
    irr::core::rect<int> result = rect;
    const float width = static_cast<float>(rect.getWidth());
    const float height = static_cast<float>(rect.getHeight());
    const float widthOfHeight = height * aspect;
    if (width >= widthOfHeight) {
        const int centre = (rect.UpperLeftCorner.X + rect.LowerRightCorner.X) / 2;
        const int half = static_cast<int>(widthOfHeight * 0.5f);
        result.UpperLeftCorner.X = centre - half;
        result.LowerRightCorner.X = centre + half;
    } else {
        const int centre = (rect.UpperLeftCorner.Y + rect.LowerRightCorner.Y) / 2;
        const int half = static_cast<int>((width / aspect) * 0.5f);
        result.UpperLeftCorner.Y = centre - half;
        result.LowerRightCorner.Y = centre + half;
    }
    return result;
}

irr::core::rect<int>& makeQuadratic(irr::core::rect<int>& rect) {
    rect = makeXic(rect, 1.0f);
    return rect;
}

irr::core::rect<int> limitRect(const irr::core::rect<int>& rect, const irr::core::rect<int>& bounds) {
    irr::core::rect<int> result = rect;
    limitSpan(result.UpperLeftCorner.X, result.LowerRightCorner.X, bounds.UpperLeftCorner.X, bounds.LowerRightCorner.X);
    limitSpan(result.UpperLeftCorner.Y, result.LowerRightCorner.Y, bounds.UpperLeftCorner.Y, bounds.LowerRightCorner.Y);
    return result;
}

} // namespace skyvane
