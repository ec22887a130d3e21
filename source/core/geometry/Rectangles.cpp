#include "core/geometry/Rectangles.h"

namespace skyvane {

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

} // namespace skyvane
